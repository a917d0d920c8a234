@set @x 1

// expect error: 1011 at 1:8
