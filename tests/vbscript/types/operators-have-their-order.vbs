WScript.Echo 2 + 3 * 4, (2 + 3) * 4, 2 * 3 ^ 2
' expect: 14 20 18
WScript.Echo 10 \ 3 * 2, 10 Mod 3 * 2, 7 Mod 4 \ 3
' expect: 1 4 0
WScript.Echo 1 + 2 & 3 + 4, "a" & 1 = "a1"
' expect: 37 True
WScript.Echo Not 1 = 2, Not False And False, True Or False And False
' expect: True False True
