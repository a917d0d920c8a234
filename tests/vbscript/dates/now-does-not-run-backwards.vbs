a = Now
b = Now
WScript.Echo b >= a
' expect: True
