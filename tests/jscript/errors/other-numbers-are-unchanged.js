throw new Error(-2147221504, "mine");

// expect error: -2147221504 at 1:6
// expect text: mine
