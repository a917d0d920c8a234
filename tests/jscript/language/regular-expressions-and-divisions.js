var a = 8, b = 2, g = 1, s = "a/b";
var q = a / b / g, r = s.replace(/[/]/g, "("), t = (a) / b;
if (a) /x=/.test(s);
a /= 2; var o = {p: 6}; var u = o.p / 2, w = [6][0] / 3;
WScript.Echo(q, r, t, a, u, w, /\/(1) = 2/.test(s));
// expect: 4 a(b 4 4 3 2 False
