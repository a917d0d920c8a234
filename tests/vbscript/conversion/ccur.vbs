Function Show(value)
  Show = TypeName(value) & " " & value
End Function

WScript.Echo Show(CCur("1.00005"))
' expect: Currency 1
WScript.Echo Show(CCur("1.00015"))
' expect: Currency 1.0002
WScript.Echo Show(CCur("922337203685477.5807"))
' expect: Currency 922337203685477.5807
WScript.Echo Show(CCur("-922337203685477.5808"))
' expect: Currency -922337203685477.5808
WScript.Echo Show(CCur(True))
' expect: Currency -1
WScript.Echo Show(CCur(Empty))
' expect: Currency 0
WScript.Echo Show(CCur("$1,234.56"))
' expect: Currency 1234.56
WScript.Echo Show(CCur("(5)"))
' expect: Currency -5
