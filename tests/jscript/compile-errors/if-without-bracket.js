if a) b();

// expect error: 1005 at 1:3
