' expect: |
WScript.Echo Replace("abc", "a", "x", 4) & "|"
