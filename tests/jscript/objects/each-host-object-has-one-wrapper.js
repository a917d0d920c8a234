var a = Host.Self, b = Host.Self;
a = null; b = null;
WScript.Echo(Host.Self === Host, Host.Items === Host.Items, Host == Shared);
Host.Value = Shared;
WScript.Echo(Host.Value === Shared);
// expect: True True False
// expect: True
