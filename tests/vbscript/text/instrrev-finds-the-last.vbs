' expect: 5
' expect: 0
WScript.Echo InStrRev("abcabc", "b")
WScript.Echo InStrRev("abc", "x")
