a: for (;;) { a: for (;;) { } }

// expect error: 1025 at 1:14
