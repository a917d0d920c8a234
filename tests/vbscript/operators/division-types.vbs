Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(6 / 2)
' expect: Double 3
WScript.Echo Show(1 / 3)
' expect: Double 0.333333333333333
WScript.Echo Show(CByte(4) / CByte(2))
' expect: Double 2
WScript.Echo Show(CSng(1) / CSng(4))
' expect: Single 0.25
WScript.Echo Show(CSng(1) / 4)
' expect: Single 0.25
WScript.Echo Show(1 / CSng(4))
' expect: Single 0.25
WScript.Echo Show(CSng(1) / CLng(4))
' expect: Double 0.25
WScript.Echo Show("9" / "2")
' expect: Double 4.5
WScript.Echo Show(True / 2)
' expect: Double -0.5
WScript.Echo Show(Empty / 2)
' expect: Double 0
