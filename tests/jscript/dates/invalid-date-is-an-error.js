Host.Value = new Date(NaN);
// expect error: 5 at 1:13
