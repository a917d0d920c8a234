var a = 1;
/* no end

// expect error: 1016 at 5:0
