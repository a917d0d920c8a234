' expect: bonona
' expect: banana
' expect: bonono
WScript.Echo Replace("banana", "a", "o", 1, 2)
WScript.Echo Replace("banana", "a", "o", 1, 0)
WScript.Echo Replace("banana", "a", "o", 1, -1)
