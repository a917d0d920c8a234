var Value = 1;
Value = 2;
WScript.Echo(Value, Shared.Value === undefined);
// expect: 2 True
