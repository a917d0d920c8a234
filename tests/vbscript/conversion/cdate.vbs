Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(CDate(0))
' expect: Date 12:00:00 AM
WScript.Echo Show(CDate(36526))
' expect: Date 1/1/2000
WScript.Echo Show(CDate(36526.75))
' expect: Date 1/1/2000 6:00:00 PM
WScript.Echo Show(CDate(-1.5))
' expect: Date 12/29/1899 12:00:00 PM
WScript.Echo Show(CDate("1/2/2000"))
' expect: Date 1/2/2000
WScript.Echo Show(CDate("2000-03-04"))
' expect: Date 3/4/2000
WScript.Echo Show(CDate("March 4, 2000"))
' expect: Date 3/4/2000
WScript.Echo Show(CDate("13:45"))
' expect: Date 1:45:00 PM
WScript.Echo Show(CDate(Empty))
' expect: Date 12:00:00 AM
