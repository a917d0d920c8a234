var a = [1, 2;

// expect error: 1007 at 1:13
