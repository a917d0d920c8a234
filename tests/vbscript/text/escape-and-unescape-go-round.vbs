' expect: True
s = "a+b = ""c"" " & vbCrLf & ChrW(1234)
WScript.Echo Unescape(Escape(s)) = s
