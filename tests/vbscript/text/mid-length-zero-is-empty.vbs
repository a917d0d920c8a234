' expect: |
WScript.Echo Mid("abc", 2, 0) & "|"
