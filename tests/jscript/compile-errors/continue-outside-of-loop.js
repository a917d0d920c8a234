if (true) { continue; }

// expect error: 1020 at 1:12
