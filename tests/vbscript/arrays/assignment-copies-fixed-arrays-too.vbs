Dim a(1)
a(0) = "x"
b = a
a(0) = "y"
WScript.Echo a(0), b(0)
' expect: y x
