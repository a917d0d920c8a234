var a = 0x;

// expect error: 1023 at 1:10
