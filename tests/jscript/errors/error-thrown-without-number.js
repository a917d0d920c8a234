throw new Error("so it is");

// expect error: 5022 at 1:6
// expect text: so it is
