var a = 1;
  a = nowhere + 1;

// expect error: 5009 at 2:2
// expect text: 'nowhere' is undefined
