1 = 2;

// expect error: 5008 at 1:0
