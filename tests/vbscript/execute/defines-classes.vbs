Execute "Class Box : Public N : End Class"
Set b = Eval("New Box")
b.N = 3
WScript.Echo TypeName(b), b.N
' expect: Box 3
