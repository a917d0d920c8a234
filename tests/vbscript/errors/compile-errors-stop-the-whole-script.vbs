WScript.Echo "never"
Const a = 1 + 1
' expect error: 1045
