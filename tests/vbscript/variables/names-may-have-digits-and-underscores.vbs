a_1 = 1
A1_b_ = 2
WScript.Echo a_1, a1_B_
' expect: 1 2
