' expect: 5
WScript.Echo InStrRev("abcabc", "B", , vbTextCompare)
