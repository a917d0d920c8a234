' expect: ba
WScript.Echo Replace("aaa", "aa", "b")
