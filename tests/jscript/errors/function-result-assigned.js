function f() { }
f(1) = 2;

// expect error: 5003 at 2:0
// expect text: Cannot assign to a function result
