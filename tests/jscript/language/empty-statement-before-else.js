if (false) { WScript.Echo(1); }; else { WScript.Echo(2); }
// expect: 2
