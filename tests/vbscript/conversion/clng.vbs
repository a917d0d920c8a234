Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(CLng(2.5))
' expect: Long 2
WScript.Echo Show(CLng("70000"))
' expect: Long 70000
WScript.Echo Show(CLng(True))
' expect: Long -1
WScript.Echo Show(CLng(Empty))
' expect: Long 0
WScript.Echo Show(CLng("&HFFFF"))
' expect: Long 65535
WScript.Echo Show(CLng("&HFFFFFFFF"))
' expect: Long -1
WScript.Echo Show(CLng("&O17"))
' expect: Long 15
WScript.Echo Show(CLng(2147483647.4))
' expect: Long 2147483647
WScript.Echo Show(CLng("-2147483648.5"))
' expect: Long -2147483648
