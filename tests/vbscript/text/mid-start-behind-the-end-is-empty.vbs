' expect: |
' expect: |
WScript.Echo Mid("abc", 4) & "|"
WScript.Echo Mid("abc", 100, 2) & "|"
