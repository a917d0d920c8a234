quantità = 2
WScript.Echo QUANTITÀ
' expect: 2
