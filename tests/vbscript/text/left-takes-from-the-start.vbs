' expect: ab
' expect: |
' expect: abc
WScript.Echo Left("abc", 2)
WScript.Echo Left("abc", 0) & "|"
WScript.Echo Left("abc", 99)
