Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(Fix(1.7))
' expect: Double 1
WScript.Echo Show(Fix(-1.2))
' expect: Double -1
WScript.Echo Show(Fix(-5))
' expect: Integer -5
WScript.Echo Show(Fix("-2.7"))
' expect: Double -2
WScript.Echo Show(Fix(CCur("-1.5")))
' expect: Currency -1
WScript.Echo Show(Fix(CSng(-1.5)))
' expect: Single -1
WScript.Echo Show(Fix(Empty))
' expect: Integer 0
WScript.Echo Show(Fix(True))
' expect: Integer -1
