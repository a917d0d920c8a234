var a;
a.b = 1;

// expect error: 5007 at 2:0
// expect text: 'a' is null or not an object
