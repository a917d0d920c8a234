' expect: 4
WScript.Echo Len(Trim(vbTab & "a" & vbCrLf))
