Function Find(list, wanted)
  Dim i
  Find = -1
  For i = 0 To UBound(list)
    If list(i) = wanted Then
      Find = i
      Exit Function
    End If
  Next
  WScript.Echo "not found"
End Function
WScript.Echo Find(Array("a", "b", "c"), "b")
' expect: 1
x = Find(Array("a"), "b")
WScript.Echo x
' expect: not found
' expect: -1
