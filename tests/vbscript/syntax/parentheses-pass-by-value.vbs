Sub Double(n)
  n = n * 2
End Sub
x = 1
Double (x)
WScript.Echo x
Double(x)
WScript.Echo x
Double x
WScript.Echo x
Call Double(x)
WScript.Echo x
Call Double((x))
WScript.Echo x
' expect: 1
' expect: 1
' expect: 2
' expect: 4
' expect: 4
