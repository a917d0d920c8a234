' Plus joins two texts, under the same limit as the ampersand.
On Error Resume Next
s = Space(134217729)
t = s + s
WScript.Echo Err.Number, IsEmpty(t)
' expect: 14 True
