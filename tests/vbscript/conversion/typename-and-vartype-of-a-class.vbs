Class Plain
End Class
Class WithDefault
  Public Default Property Get Value()
    Value = "text"
  End Property
End Class
Set p = New Plain
Set w = New WithDefault
WScript.Echo TypeName(p), VarType(p), TypeName(w), VarType(w)
' expect: Plain 9 WithDefault 8
