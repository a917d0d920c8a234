var a = new ActiveXObject("No.Such");

// expect error: 429 at 1:8
// expect text: Automation server can't create object
