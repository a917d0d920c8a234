for (;;) { break nowhere; }

// expect error: 1026 at 1:17
