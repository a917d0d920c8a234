Sub Fill(ByVal list)
  list(0) = "changed"
  WScript.Echo list(0)
End Sub
Dim a(1)
a(0) = "kept"
Fill a
WScript.Echo a(0)
' expect: changed
' expect: kept
