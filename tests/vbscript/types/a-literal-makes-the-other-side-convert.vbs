s = "10"
n = 10
WScript.Echo s = 10, s > 9, s < 9
' expect: True True False
WScript.Echo n = "10", n <> "9"
' expect: True True
