a.;

// expect error: 1010 at 1:2
