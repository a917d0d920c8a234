Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(+("5"))
' expect: String 5
WScript.Echo Show(+("abc"))
' expect: String abc
WScript.Echo Show(+(True))
' expect: Boolean True
WScript.Echo Show(+(5))
' expect: Integer 5
