n255 = String(255, "a")
Execute n255 & " = 7"
WScript.Echo Eval(n255)
' expect: 7
