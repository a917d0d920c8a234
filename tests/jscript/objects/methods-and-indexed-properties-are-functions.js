WScript.Echo(typeof Host.Title, typeof Host.Cell, Host.Title === Host.title, Host.Title === Host.Title);
var f = Host.Title;
WScript.Echo(f.call(Host), Host.Title.apply(Host, []));
try { f(); } catch (e) { WScript.Echo(e.number & 0xFFFF); }
// expect: function function False True
// expect: a gadget a gadget
// expect: 5007
