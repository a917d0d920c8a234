Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(2.5 And 7)
' expect: Long 2
WScript.Echo Show(3.5 And 7)
' expect: Long 4
WScript.Echo Show("2.5" Or 0)
' expect: Long 2
