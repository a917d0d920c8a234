WScript.Echo(Title(), title(), typeof Cell, typeof nothing);
Value = 5;
WScript.Echo(Value, value, Shared.Value);
function Title() { return "own"; }
with (Host) { WScript.Echo(Title()); }
// expect: own a gadget function undefined
// expect: 5 5 5
// expect: a gadget
