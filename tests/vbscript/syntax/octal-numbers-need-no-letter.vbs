WScript.Echo &o17
WScript.Echo &O17
x = &17
WScript.Echo x
WScript.Echo &177777 & " " & &177777&
' expect: 15
' expect: 15
' expect: 15
' expect: -1 65535
