Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(Empty + Empty)
' expect: Integer 0
WScript.Echo Show(Empty + 5)
' expect: Integer 5
WScript.Echo Show(5 + Empty)
' expect: Integer 5
WScript.Echo Show(Empty + CByte(5))
' expect: Byte 5
WScript.Echo Show(Empty + "5")
' expect: String 5
WScript.Echo Show("abc" + Empty)
' expect: String abc
WScript.Echo Show(Empty + 1.5)
' expect: Double 1.5
WScript.Echo Show(Empty - 5)
' expect: Integer -5
WScript.Echo Show(Empty * 5)
' expect: Integer 0
WScript.Echo Show(Empty - "5")
' expect: Double -5
