Host.Value = null;
WScript.Echo(Host.Value === null);
// expect: True
