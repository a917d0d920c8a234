Dim s

Class Changer
  Public Default Property Get Value()
    s = 5
    Value = "x"
  End Property
End Class
Dim o
Set o = New Changer

' The text is read before the property changes the variable.
s = "abc"
s = s & o
WScript.Echo s
s = "abc"
WScript.Echo s & o
s = "abc"
WScript.Echo s + o
s = "x"
WScript.Echo s = o
' expect: abcx
' expect: abcx
' expect: abcx
' expect: True
