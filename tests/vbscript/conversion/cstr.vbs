Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(CStr(1))
' expect: String 1
WScript.Echo Show(CStr(-1.5))
' expect: String -1.5
WScript.Echo Show(CStr(True))
' expect: String True
WScript.Echo Show(CStr(False))
' expect: String False
WScript.Echo Show(CStr("a"))
' expect: String a
WScript.Echo Show(CStr(#2000-01-01#))
' expect: String 1/1/2000
WScript.Echo Show(CStr(#12:30#))
' expect: String 12:30:00 PM
WScript.Echo Show(CStr(CCur("1.50")))
' expect: String 1.5
WScript.Echo Show(CStr(CSng(0.1)))
' expect: String 0.1
