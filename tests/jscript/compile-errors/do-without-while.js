do { } until (true)

// expect error: 1024 at 1:7
