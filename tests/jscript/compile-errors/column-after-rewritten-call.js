Host("a") = 1; var b = = 2;

// expect error: 1002 at 1:23
