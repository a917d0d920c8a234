' expect: abc1
' expect: ABC1
' expect: TRUE
WScript.Echo LCase("AbC1")
WScript.Echo UCase("AbC1")
WScript.Echo UCase(True)
