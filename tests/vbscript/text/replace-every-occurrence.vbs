' expect: bonono
' expect: ba
WScript.Echo Replace("banana", "a", "o")
WScript.Echo Replace("banana", "an", "")
