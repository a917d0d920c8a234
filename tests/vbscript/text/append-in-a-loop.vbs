' expect: 20000
s = ""
For i = 1 To 20000 : s = s & "x" : Next
WScript.Echo Len(s)
