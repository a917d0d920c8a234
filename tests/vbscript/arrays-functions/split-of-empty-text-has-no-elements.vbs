' expect: -1
' expect: -1
WScript.Echo UBound(Split(""))
WScript.Echo UBound(Split("", ","))
