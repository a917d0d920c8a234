Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(True + True)
' expect: Integer -2
WScript.Echo Show(True + 1)
' expect: Integer 0
WScript.Echo Show(True - False)
' expect: Integer -1
WScript.Echo Show(True * True)
' expect: Integer 1
WScript.Echo Show(True + "1")
' expect: Double 0
WScript.Echo Show(True + CLng(1))
' expect: Long 0
