number = 10
WScript.Echo number = "10", number < "9", "9" > number, number = " 10", number < "abc"
' expect: True True True False True
flag = True
WScript.Echo flag = "True", flag = "-1"
' expect: True False
