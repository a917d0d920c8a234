WScript.Echo vbRed = RGB(255, 0, 0), vbGreen = RGB(0, 255, 0), vbBlue = RGB(0, 0, 255), vbWhite = RGB(255, 255, 255)
' expect: True True True True
WScript.Echo vbYellow = vbRed + vbGreen, vbMagenta = vbRed + vbBlue, vbCyan = vbGreen + vbBlue, vbBlack = 0
' expect: True True True True
