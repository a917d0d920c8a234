/*@cc_on @if (true)
var a; @*/


// expect error: 1029 at 6:0
