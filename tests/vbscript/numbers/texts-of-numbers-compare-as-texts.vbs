WScript.Echo CStr(10) < CStr(9), CStr(1.5) = "1.5", 10 & "" = "10"
' expect: True True True
