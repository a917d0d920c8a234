' expect: 1
' expect: 4
' expect: 0
WScript.Echo InStrRev("abcabc", "abc", 5)
WScript.Echo InStrRev("abcabc", "abc", 6)
WScript.Echo InStrRev("abc", "abc", 2)
