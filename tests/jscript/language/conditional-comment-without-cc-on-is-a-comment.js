/*@ nothing @*/
//@ nothing
WScript.Echo("run");
// expect: run
