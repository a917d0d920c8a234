var 1;

// expect error: 1010 at 1:4
