Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(RGB(0, 0, 0))
' expect: Long 0
WScript.Echo Show(RGB(255, 0, 0))
' expect: Long 255
WScript.Echo Show(RGB(0, 255, 0))
' expect: Long 65280
WScript.Echo Show(RGB(0, 0, 255))
' expect: Long 16711680
WScript.Echo Show(RGB(1, 2, 3))
' expect: Long 197121
WScript.Echo Show(RGB(300, 1000, 256))
' expect: Long 16777215
WScript.Echo Show(RGB("1", 0.5, Empty))
' expect: Long 1
