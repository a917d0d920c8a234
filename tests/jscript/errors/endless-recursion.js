function f() { return f() + 1; }
f();

// expect error: 28
// expect text: Out of stack space
