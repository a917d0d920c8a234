var d = new Date(2020, 0, 2, 15, 4, 5);
Host.Value = d.getVarDate();
var v = Host.Value;
WScript.Echo(v, v.getHours(), new Date(v).getTime() == d.getTime(), typeof v, Host.Value - d);
Host.Value = d;
d.setFullYear(1950);
WScript.Echo(Host.Value, d);
try { Date.prototype.getVarDate.call(1); } catch (e) { WScript.Echo(e.number & 0xFFFF); }
Host.Value = new Date(1800, 5, 6, 18, 0, 0);
WScript.Echo(Host.Value, Host.Value.getHours());
// expect: 1/2/2020 3:04:05 PM 15 True object 0
// expect: 1/2/2020 3:04:05 PM 1/2/1950 3:04:05 PM
// expect: 5006
// expect: 6/6/1800 6:00:00 PM 18
