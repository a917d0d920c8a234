Host.Value = 3;
WScript.Echo(Host.value, Host.VALUE, host.Value, HOST.vAlUe, wscript === WScript);
Host.vALUE = 4;
WScript.Echo(Host["value"], "VALUE" in Host, "nothing" in Host, Host.nothing === undefined);
// expect: 3 3 3 3 True
// expect: 4 True False True
