Host.Value = new Date(20000, 0, 1);
// expect error: 5 at 1:13
