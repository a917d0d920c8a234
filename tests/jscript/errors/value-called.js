var a = 5;
a();

// expect error: 5002 at 2:0
// expect text: Function expected
