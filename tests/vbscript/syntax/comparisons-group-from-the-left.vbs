WScript.Echo 3 > 2 > 1
WScript.Echo 1 = 1 = True
' expect: False
' expect: True
