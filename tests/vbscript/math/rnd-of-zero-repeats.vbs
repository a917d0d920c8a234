WScript.Echo Rnd = Rnd(0), Rnd(0) = Rnd(0)
' expect: True True
