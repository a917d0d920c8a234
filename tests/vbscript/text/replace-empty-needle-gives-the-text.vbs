' expect: abc
WScript.Echo Replace("abc", "", "x")
