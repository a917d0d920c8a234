Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show("1" + "2")
' expect: String 12
WScript.Echo Show("1" + 2)
' expect: Double 3
WScript.Echo Show(2 + "1.5")
' expect: Double 3.5
WScript.Echo Show(" 7 " + 1)
' expect: Double 8
WScript.Echo Show("&H10" + 1)
' expect: Double 17
WScript.Echo Show("1E2" + 1)
' expect: Double 101
WScript.Echo Show("-5" + 1)
' expect: Double -4
WScript.Echo Show("1,000" + 1)
' expect: Double 1001
