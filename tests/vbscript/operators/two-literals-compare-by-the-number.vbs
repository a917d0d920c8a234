WScript.Echo 1 = "1", "1.0" = 1, 9 < "10", "9" < 10
' expect: True True True True
