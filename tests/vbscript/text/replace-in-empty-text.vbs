' expect: |
WScript.Echo Replace("", "a", "b") & "|"
