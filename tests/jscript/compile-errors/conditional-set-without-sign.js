@set x = 1

// expect error: 1032 at 1:5
