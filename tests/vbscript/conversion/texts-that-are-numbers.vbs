Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(CDbl(" 12 "))
' expect: Double 12
WScript.Echo Show(CDbl("+12"))
' expect: Double 12
WScript.Echo Show(CDbl("-12"))
' expect: Double -12
WScript.Echo Show(CDbl("12-"))
' expect: Double -12
WScript.Echo Show(CDbl("(12)"))
' expect: Double -12
WScript.Echo Show(CDbl("$12"))
' expect: Double 12
WScript.Echo Show(CDbl("-$12"))
' expect: Double -12
WScript.Echo Show(CDbl("$-12"))
' expect: Double -12
WScript.Echo Show(CDbl("($12)"))
' expect: Double -12
WScript.Echo Show(CDbl("1,234.5"))
' expect: Double 1234.5
WScript.Echo Show(CDbl("1,2,3"))
' expect: Double 123
WScript.Echo Show(CDbl(".5"))
' expect: Double 0.5
WScript.Echo Show(CDbl("5."))
' expect: Double 5
WScript.Echo Show(CDbl("1e3"))
' expect: Double 1000
WScript.Echo Show(CDbl("1E+3"))
' expect: Double 1000
WScript.Echo Show(CDbl("1d-3"))
' expect: Double 0.001
WScript.Echo Show(CDbl("&H1F"))
' expect: Double 31
WScript.Echo Show(CDbl("&o17"))
' expect: Double 15
