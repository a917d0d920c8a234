var before = Host.Reads;
Host.Say;
if (Host.Title) WScript.Echo(Host.Reads - before);
// expect: 1
