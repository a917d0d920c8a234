Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(Null And 0)
' expect: Integer 0
WScript.Echo Show(CByte(0) And Null)
' expect: Byte 0
WScript.Echo Show(Null Or 5)
' expect: Integer 5
WScript.Echo Show(Null Or CLng(7))
' expect: Long 7
WScript.Echo Show(0 Imp Null)
' expect: Integer -1
WScript.Echo Show(5 Imp Null)
' expect: Integer -6
WScript.Echo Show(Null Imp 5)
' expect: Integer 5
