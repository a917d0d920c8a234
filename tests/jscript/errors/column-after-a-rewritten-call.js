Host("a") = nowhere;

// expect error: 5009 at 1:0
// expect text: 'nowhere' is undefined
