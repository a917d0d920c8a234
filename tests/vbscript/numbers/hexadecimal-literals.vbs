WScript.Echo &HFF, &hff, &HFFFF, &HFFFF&, &H10000, &HFFFFFFFF, &H7FFF, &H8000
' expect: 255 255 -1 65535 65536 -1 32767 -32768
WScript.Echo TypeName(&HFF), TypeName(&HFFFF), TypeName(&HFFFF&), TypeName(&H10000)
' expect: Integer Integer Long Long
