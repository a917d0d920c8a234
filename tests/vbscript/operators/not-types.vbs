Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(Not True)
' expect: Boolean False
WScript.Echo Show(Not 5)
' expect: Integer -6
WScript.Echo Show(Not CByte(1))
' expect: Byte 254
WScript.Echo Show(Not CLng(70000))
' expect: Long -70001
WScript.Echo Show(Not 2.5)
' expect: Long -3
WScript.Echo Show(Not Empty)
' expect: Integer -1
WScript.Echo Show(Not "5")
' expect: Long -6
WScript.Echo Show(Not "True")
' expect: Boolean False
WScript.Echo Show(Not CCur(1))
' expect: Long -2
