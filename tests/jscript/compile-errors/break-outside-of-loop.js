break;

// expect error: 1019 at 1:0
