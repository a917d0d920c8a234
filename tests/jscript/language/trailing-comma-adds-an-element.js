WScript.Echo([1, 2, ].length, [].length, [,].length, [1, [2, ], ].length);
var o = {a: 1, b: 2, };
WScript.Echo(o.b, "x,".split(",").length);
// expect: 3 0 1 3
// expect: 2 2
