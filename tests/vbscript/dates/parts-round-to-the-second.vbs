WScript.Echo Second(0.999999), Day(0.999999)
' expect: 0 31
