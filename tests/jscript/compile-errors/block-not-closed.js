function f() {
  if (x) {
}


// expect error: 1009 at 7:0
