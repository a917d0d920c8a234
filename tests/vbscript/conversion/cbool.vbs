Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(CBool(1))
' expect: Boolean True
WScript.Echo Show(CBool(0.0))
' expect: Boolean False
WScript.Echo Show(CBool("True"))
' expect: Boolean True
WScript.Echo Show(CBool("fALSE"))
' expect: Boolean False
WScript.Echo Show(CBool("0"))
' expect: Boolean False
WScript.Echo Show(CBool("-3.5"))
' expect: Boolean True
WScript.Echo Show(CBool(Empty))
' expect: Boolean False
WScript.Echo Show(CBool(CCur("0.0001")))
' expect: Boolean True
WScript.Echo Show(CBool(#1899-12-30#))
' expect: Boolean False
WScript.Echo Show(CBool("#TRUE#"))
' expect: Boolean True
