var a = "abc
var b;

// expect error: 1015 at 1:12
