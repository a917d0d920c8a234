throw new Error(0x800A01B6 | 0, "mine");

// expect error: 438 at 1:6
// expect text: mine
