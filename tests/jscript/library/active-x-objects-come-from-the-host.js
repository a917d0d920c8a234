var a = new ActiveXObject("Sample.Gadget"), b = new ActiveXObject("sample.gadget");
a.Value = 1;
WScript.Echo(a.Value, b.Value === undefined, a === b, a.Title());
try { GetObject("x"); } catch (e) { WScript.Echo(e.number & 0xFFFF); }
try { GetObject("", "Sample.Gadget"); } catch (e) { WScript.Echo(e.number & 0xFFFF); }
// expect: 1 True False a gadget
// expect: 429
// expect: 429
