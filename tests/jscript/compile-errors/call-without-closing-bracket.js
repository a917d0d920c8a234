f(1;

// expect error: 1006 at 1:3
