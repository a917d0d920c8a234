Dim kept
kept = Array(1, 2)
Function Give()
  Give = kept
End Function
a = Give()
a(0) = 9
WScript.Echo kept(0), a(0)
' expect: 1 9
