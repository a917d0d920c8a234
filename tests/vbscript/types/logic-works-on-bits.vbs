WScript.Echo 6 And 3, 6 Or 3, 6 Xor 3, Not 0, Not 5
' expect: 2 7 5 -1 -6
WScript.Echo 6 Eqv 3, 6 Imp 3, 5 And True
' expect: -6 -5 5
WScript.Echo "6" And 3
' expect: 2
