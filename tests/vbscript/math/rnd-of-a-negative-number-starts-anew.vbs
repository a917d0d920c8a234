WScript.Echo Rnd(-1), Rnd(-1), Rnd(-2)
' expect: 0.224007 0.224007 0.7133257
WScript.Echo Rnd(-1) = Rnd(-1), Rnd(-1) = Rnd(-2)
' expect: True False
