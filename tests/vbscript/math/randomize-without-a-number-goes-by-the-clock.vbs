Randomize
x = Rnd
WScript.Echo x >= 0, x < 1, TypeName(x)
' expect: True True Single
