throw new Error(1234, "mine");

// expect error: 1234 at 1:6
// expect text: mine
