var valid_var = 1;
// a comment
this is an invalid line

// expect error: 1004 at 3:5
