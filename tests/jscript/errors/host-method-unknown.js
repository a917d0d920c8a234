Host.Nothing1(1);

// expect error: 438 at 1:5
// expect text: Object doesn't support this property or method
