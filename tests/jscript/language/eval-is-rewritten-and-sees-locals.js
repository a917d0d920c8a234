function f() { var v = 3; eval('Host("e") = v + 1'); return eval("v * 2"); }
WScript.Echo(f(), Host("e"), eval("[1, ].length"), eval(5));
// expect: 6 4 2 5
