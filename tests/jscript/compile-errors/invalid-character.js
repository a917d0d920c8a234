var a = §;

// expect error: 1014 at 1:8
