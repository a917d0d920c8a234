h = 1
height = 2
WScript.Echo "a"&1
WScript.Echo "a"&height
WScript.Echo "a"&h
' expect: a1
' expect: a2
' expect: a1
