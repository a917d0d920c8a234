Sub S()
End Sub
Function F(a) : End Function
S
F 1
WScript.Echo "end"
' expect: end
