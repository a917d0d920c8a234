: : x = 1 : : y = 2 :
If x = 1 Then : : y = 3 : Else : y = 4
WScript.Echo y
' expect: 3
