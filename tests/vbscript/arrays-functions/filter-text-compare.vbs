' expect: -1
' expect: 0
' expect: 0
WScript.Echo UBound(Filter(Array("one"), "O"))
WScript.Echo UBound(Filter(Array("one"), "O", True, vbTextCompare))
WScript.Echo UBound(Filter(Array("one"), "O", , 1))
