' locale: it-IT
WScript.Echo 1.5, 1 / 3, 1.5E20, CCur("1,5"), CSng(2.5)
' expect: 1,5 0,333333333333333 1,5E+20 1,5 2,5
