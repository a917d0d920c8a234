' expect: -1
WScript.Echo UBound(Array())
