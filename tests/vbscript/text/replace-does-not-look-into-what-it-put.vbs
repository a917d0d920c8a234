' expect: aaaa
WScript.Echo Replace("aa", "a", "aa")
