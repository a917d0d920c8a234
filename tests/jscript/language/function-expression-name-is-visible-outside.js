var f = function inner(n) { return n < 2 ? 1 : n * inner(n - 1); };
WScript.Echo(f(4), inner(3));
var kept = 1;
var g = function kept2() { return kept; };
WScript.Echo(g());
// expect: 24 6
// expect: 1
