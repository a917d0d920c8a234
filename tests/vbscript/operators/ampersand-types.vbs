Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(1 & 2)
' expect: String 12
WScript.Echo Show("a" & Null)
' expect: String a
WScript.Echo Show(Null & "a")
' expect: String a
WScript.Echo Show(1.5 & True)
' expect: String 1.5True
WScript.Echo Show(-1 & -2)
' expect: String -1-2
WScript.Echo Show(#2000-01-01# & "")
' expect: String 1/1/2000
WScript.Echo Show(CCur("1.50") & "")
' expect: String 1.5
