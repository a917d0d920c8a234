Sub S() x = 1 End Sub
Function F() F = 2 End Function
Sub T : x = x + 5 : End Sub
x = 0
S
T
WScript.Echo x + F()
' expect: 8
