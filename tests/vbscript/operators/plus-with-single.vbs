Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(CSng(1.5) + 1)
' expect: Single 2.5
WScript.Echo Show(CSng(1.5) + CLng(1))
' expect: Double 2.5
WScript.Echo Show(CSng(1.5) + 1.5)
' expect: Double 3
WScript.Echo Show(CSng(1.5) + CSng(1.5))
' expect: Single 3
WScript.Echo Show(CSng(1.5) + True)
' expect: Single 0.5
WScript.Echo Show(CSng(1.5) + Empty)
' expect: Single 1.5
