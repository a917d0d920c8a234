WScript.Echo Rnd, Rnd, Rnd
' expect: 0.7055475 0.533424 0.5795186
WScript.Echo TypeName(Rnd)
' expect: Single
