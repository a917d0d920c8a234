// locale: it-IT
var d = new Date("31/12/2020");
WScript.Echo(d.getDate(), d.getMonth());
// expect: 31 11
