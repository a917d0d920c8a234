  throw "text";

// expect error: 5022 at 1:2
// expect text: Exception thrown and not caught
