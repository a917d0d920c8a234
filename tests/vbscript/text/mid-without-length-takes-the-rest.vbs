' expect: def
WScript.Echo Mid("abcdef", 4)
