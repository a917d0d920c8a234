' expect: nono
' expect: nana
WScript.Echo Replace("banana", "a", "o", 3)
WScript.Echo Replace("banana", "x", "o", 3)
