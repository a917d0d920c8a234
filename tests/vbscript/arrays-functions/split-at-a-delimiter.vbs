' expect: a|b|c
' expect: |a|
' expect: a|b
WScript.Echo Join(Split("a,b,c", ","), "|")
WScript.Echo Join(Split(",a,", ","), "|")
WScript.Echo Join(Split("a--b", "--"), "|")
