function show(text) { var d = new Date(text); WScript.Echo(isNaN(d) ? "none" : d.getFullYear() + "-" + (d.getMonth() + 1) + "-" + d.getDate() + " " + d.getHours()); }
show("7/20/96 3:00 PM"); show("7/20/1996"); show("July 20, 1996"); show("20 Jul 1996 15:00"); show("7-20-1996"); show("no date");
WScript.Echo(isNaN(Date.parse("x")), Date.parse("1/1/1970 00:00:00 GMT"), typeof Date(), new Date(5).getTime(), Date.UTC(1970, 0, 2), Date.length, Date.name);
// expect: 1996-7-20 15
// expect: 1996-7-20 0
// expect: 1996-7-20 0
// expect: 1996-7-20 15
// expect: 1996-7-20 0
// expect: none
// expect: True 0 string 5 86400000 1 Date
