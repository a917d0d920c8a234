WScript.Echo 1 = 1.0, CByte(1) = CLng(1), True = -1, False = 0, CCur(1) = 1
' expect: True True True True True
WScript.Echo 1 < 1.5, -1 > -2, 2 <= 2, 2 >= 3, 1 <> 1
' expect: True True True False False
WScript.Echo #2000-01-01# = 36526, #2000-01-01# < #2000-01-02#
' expect: True True
