' expect: -1
WScript.Echo StrComp("ab", "abc")
