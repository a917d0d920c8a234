var a;
return a;

// expect error: 1018 at 2:0
