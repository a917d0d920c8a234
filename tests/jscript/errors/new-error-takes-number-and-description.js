function show(e) { WScript.Echo(e.number, "[" + e.description + "]", "[" + e.message + "]", e.name, e instanceof Error, e.constructor === Error); }
show(new Error());
show(new Error("text"));
show(new Error(5));
show(new Error(5, "text"));
show(Error(5, "text"));
show(new TypeError("text"));
// expect: 0 [] [] Error True True
// expect: 0 [text] [text] Error True True
// expect: 5 [] [] Error True True
// expect: 5 [text] [text] Error True True
// expect: 5 [text] [text] Error True True
// expect: 0 [text] [text] TypeError True False
