Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(#9999-12-31# + 1)
' expect: Double 2958466
WScript.Echo Show(#0100-01-01# - 1)
' expect: Double -657435
WScript.Echo Show(-#9999-12-31#)
' expect: Double -2958465
