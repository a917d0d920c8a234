WScript.Echo Len(vbCrLf), Len(vbNewLine), Len(vbNullChar), Len(vbNullString), Asc(vbTab), Asc(vbCr), Asc(vbLf), Asc(vbVerticalTab), Asc(vbFormFeed), Asc(vbNullChar)
' expect: 2 2 1 0 9 13 10 11 12 0
