  missing(1);

// expect error: 5007 at 1:2
// expect text: Object expected
