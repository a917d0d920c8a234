Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(CCur("0.1") + CCur("0.2"))
' expect: Currency 0.3
WScript.Echo Show(CCur(1) + 1.5)
' expect: Currency 2.5
WScript.Echo Show(1.00006 + CCur(1))
' expect: Currency 2.0001
WScript.Echo Show(CCur(1) + 70000)
' expect: Currency 70001
WScript.Echo Show(CCur(1) + True)
' expect: Currency 0
WScript.Echo Show(CCur(1) + "1.5")
' expect: Currency 2.5
WScript.Echo Show(CCur(1) - CSng(0.5))
' expect: Currency 0.5
