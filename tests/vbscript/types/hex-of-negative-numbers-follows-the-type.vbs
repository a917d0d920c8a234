WScript.Echo Hex(-1), Hex(CLng(-1)), Hex(255)
' expect: FFFF FFFFFFFF FF
