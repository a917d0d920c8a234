WScript.Echo &HFF, &hff, &O17, &o17
' expect: 255 255 15 15
WScript.Echo &H7FFF, &H8000, &HFFFF
' expect: 32767 -32768 -1
WScript.Echo &HFFFF&, &H10000, &HFFFFFFFF
' expect: 65535 65536 -1
WScript.Echo TypeName(&HFFFF), TypeName(&HFFFF&), TypeName(&H10000)
' expect: Integer Long Long
