x = 32767
WScript.Echo TypeName(x), x + 1, TypeName(x + 1)
' expect: Integer 32768 Long
y = -32767
WScript.Echo y - 2, TypeName(y - 2)
' expect: -32769 Long
WScript.Echo 200 * 200, TypeName(200 * 200), TypeName(100 * 100)
' expect: 40000 Long Integer
