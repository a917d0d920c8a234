Class Box
  Public Default Property Get Value()
    Value = 5
  End Property
End Class
Set b = New Box
WScript.Echo b + 1, 2 * b, b & b, -b, b = 5, b And 4, b ^ 2, b \ 2, b Mod 3
' expect: 6 10 55 -5 True 4 25 2 2
