Host.Nothing1 = 1;

// expect error: 438 at 1:0
// expect text: Object doesn't support this property or method
