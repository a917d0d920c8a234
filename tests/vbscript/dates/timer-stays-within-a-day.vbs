WScript.Echo Timer >= 0, Timer < 86401
' expect: True True
