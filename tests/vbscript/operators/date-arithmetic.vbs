Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(#2000-01-31# + 1)
' expect: Date 2/1/2000
WScript.Echo Show(1 + #2000-01-31#)
' expect: Date 2/1/2000
WScript.Echo Show(#2000-03-01# - 1)
' expect: Date 2/29/2000
WScript.Echo Show(#2000-03-01# - #2000-02-01#)
' expect: Double 29
WScript.Echo Show(#2000-01-01# + 0.25)
' expect: Date 1/1/2000 6:00:00 AM
WScript.Echo Show(#2000-01-01# + "1")
' expect: Date 1/2/2000
WScript.Echo Show(#2000-01-01# * 1)
' expect: Double 36526
WScript.Echo Show(#2000-01-01# / 2)
' expect: Double 18263
WScript.Echo Show(#2000-01-01# \ 2)
' expect: Long 18263
WScript.Echo Show(5 - #1899-12-31#)
' expect: Date 1/3/1900
WScript.Echo Show(-#1899-12-31#)
' expect: Date 12/29/1899
