switch (1) { default: 1; default: 2; }

// expect error: 1027 at 1:25
