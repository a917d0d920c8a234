function () { nowhere; }
WScript.Echo("run");
// expect: run
