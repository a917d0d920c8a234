WScript.Echo Not 1 = 2
WScript.Echo True Or True And False
WScript.Echo True Xor True Or True
WScript.Echo False Eqv True Xor True
WScript.Echo False Imp False Eqv False
WScript.Echo Not False And False
WScript.Echo 1 & 2 = "12"
' expect: True
' expect: True
' expect: False
' expect: True
' expect: True
' expect: False
' expect: True
