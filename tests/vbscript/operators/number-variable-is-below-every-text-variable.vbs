number = 10
text = "9"
WScript.Echo number < text, number = text, number > text, text > number
' expect: True False False True
text = "10"
WScript.Echo number = text, number <> text, number < text
' expect: False True True
text = ""
WScript.Echo number < text, True < text
' expect: True True
