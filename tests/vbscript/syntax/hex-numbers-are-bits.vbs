WScript.Echo &HFF
WScript.Echo &hffff
WScript.Echo &HFFFF&
WScript.Echo &H8000
WScript.Echo &H10000
WScript.Echo &HFFFFFFFF
WScript.Echo TypeName(&HFF) & TypeName(&HFF&) & TypeName(&H10000)
' expect: 255
' expect: -1
' expect: 65535
' expect: -32768
' expect: 65536
' expect: -1
' expect: IntegerLongLong
