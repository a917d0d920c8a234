try { a(); }
b();

// expect error: 1033 at 1:11
