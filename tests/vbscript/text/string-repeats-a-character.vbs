' expect: xxx
' expect: |
WScript.Echo String(3, "xyz")
WScript.Echo String(0, "x") & "|"
