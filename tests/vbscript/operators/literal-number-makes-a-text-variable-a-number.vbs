text = "9"
WScript.Echo text < 10, 10 > text, text = 9, text = 9.0, text <> 9
' expect: True True True True False
text = " 1E1 "
WScript.Echo text = 10, 10 = text
' expect: True True
