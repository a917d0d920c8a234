Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(2 ^ 10)
' expect: Double 1024
WScript.Echo Show(2 ^ 0.5)
' expect: Double 1.4142135623731
WScript.Echo Show(2 ^ -1)
' expect: Double 0.5
WScript.Echo Show(0 ^ 0)
' expect: Double 1
WScript.Echo Show((-2) ^ 3)
' expect: Double -8
WScript.Echo Show("3" ^ "2")
' expect: Double 9
WScript.Echo Show(True ^ 2)
' expect: Double 1
WScript.Echo Show(CCur(2) ^ 2)
' expect: Double 4
WScript.Echo Show(Empty ^ 2)
' expect: Double 0
