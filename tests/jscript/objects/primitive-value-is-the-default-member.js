var list = new ActiveXObject("Sample.Collection");
try { "" + Host; } catch (e) { WScript.Echo(e.number & 0xFFFF); }
WScript.Echo("" + WScript, String(WScript), WScript.toString());
// expect: 450
// expect: [object] [object] [object]
