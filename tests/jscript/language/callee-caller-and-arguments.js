function f() { return arguments.length ? arguments[0] : arguments.callee(7); }
WScript.Echo(f(), f.length, f.apply(null, [8]));
// expect: 7 0 8
