Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(Oct(8))
' expect: String 10
WScript.Echo Show(Oct(0))
' expect: String 0
WScript.Echo Show(Oct(-1))
' expect: String 177777
WScript.Echo Show(Oct(CLng(-1)))
' expect: String 37777777777
WScript.Echo Show(Oct(True))
' expect: String 177777
WScript.Echo Show(Oct(Empty))
' expect: String 0
WScript.Echo Show(Oct("64"))
' expect: String 100
WScript.Echo Show(Oct(7.5))
' expect: String 10
