var a = {};
a.b();

// expect error: 438 at 2:2
// expect text: Object doesn't support this property or method
