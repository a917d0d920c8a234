' expect: 4
' expect: 4
' expect: 4
WScript.Echo Len(1234)
WScript.Echo Len(-1.5)
WScript.Echo Len(True)
