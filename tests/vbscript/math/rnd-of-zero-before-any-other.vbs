WScript.Echo Rnd(0)
' expect: 1.953125E-02
