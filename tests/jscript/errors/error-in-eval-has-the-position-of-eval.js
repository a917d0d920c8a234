var a = 1;
  eval("\n\nnowhere");

// expect error: 5009 at 2:2
// expect text: 'nowhere' is undefined
