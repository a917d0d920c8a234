a = Rnd(-5) : b = Rnd(1) : c = Rnd
x = Rnd(-5) : y = Rnd : z = Rnd(99)
WScript.Echo a = x, b = y, c = z, a = b
' expect: True True True False
