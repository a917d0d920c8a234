' expect: abc
WScript.Echo Left("abcdef", "3")
