Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(True And True)
' expect: Boolean True
WScript.Echo Show(True And 1)
' expect: Integer 1
WScript.Echo Show(CByte(6) And CByte(3))
' expect: Byte 2
WScript.Echo Show(CByte(6) And True)
' expect: Integer 6
WScript.Echo Show(6 And CByte(3))
' expect: Integer 2
WScript.Echo Show(6 And CLng(3))
' expect: Long 2
WScript.Echo Show(6.0 And 3)
' expect: Long 2
WScript.Echo Show("6" And 3)
' expect: Long 2
WScript.Echo Show(Empty And Empty)
' expect: Integer 0
WScript.Echo Show(Empty Or True)
' expect: Integer -1
WScript.Echo Show(CCur(6) Or 1)
' expect: Long 7
WScript.Echo Show(#1899-12-31# Or 2)
' expect: Long 3
WScript.Echo Show(CSng(5) Xor 1)
' expect: Long 4
