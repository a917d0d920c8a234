WScript.Echo VBYES, vbyes, VbYes
' expect: 6 6 6
