' expect: bc
' expect: |
' expect: abc
WScript.Echo Right("abc", 2)
WScript.Echo Right("abc", 0) & "|"
WScript.Echo Right("abc", 99)
