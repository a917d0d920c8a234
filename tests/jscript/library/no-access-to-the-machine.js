var names = ["load", "read", "print", "quit", "os", "snarf", "evalcx", "Debugger", "require", "process", "alert", "MsgBox", "ArrayBuffer", "WebAssembly", "SharedArrayBuffer", "Worker", "window", "document", "CreateObject"];
for (var i = 0; i < names.length; i++) if (eval("typeof " + names[i]) != "undefined") WScript.Echo(names[i]);
WScript.Echo("done");
// expect: done
