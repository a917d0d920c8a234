Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(Round(0.5))
' expect: Double 0
WScript.Echo Show(Round(1.5))
' expect: Double 2
WScript.Echo Show(Round(2.5))
' expect: Double 2
WScript.Echo Show(Round(-1.5))
' expect: Double -2
WScript.Echo Show(Round(1.25, 1))
' expect: Double 1.2
WScript.Echo Show(Round(1.35, 1))
' expect: Double 1.4
WScript.Echo Show(Round(3.14159, 3))
' expect: Double 3.142
WScript.Echo Show(Round(1234.5, 0))
' expect: Double 1234
WScript.Echo Show(Round("2.567", 2))
' expect: Double 2.57
WScript.Echo Show(Round(5, 2))
' expect: Integer 5
WScript.Echo Show(Round(CCur("1.2345"), 2))
' expect: Currency 1.23
WScript.Echo Show(Round(CSng(2.5)))
' expect: Single 2
WScript.Echo Show(Round(True))
' expect: Integer -1
WScript.Echo Show(Round(Empty))
' expect: Integer 0
WScript.Echo Show(Round(1E300, 5))
' expect: Double 1E+300
