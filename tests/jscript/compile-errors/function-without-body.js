function f()
var x = 1;

// expect error: 1008 at 2:0
