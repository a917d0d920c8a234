Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(CInt(-32768) \ -1)
' expect: Long 32768
