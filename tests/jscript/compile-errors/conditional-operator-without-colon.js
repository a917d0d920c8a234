var a = b ? 1;

// expect error: 1003 at 1:13
