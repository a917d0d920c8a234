n = 10
s = "9"
WScript.Echo n < s, n = s, n > s
' expect: True False False
s = "10"
WScript.Echo n = s, n <> s
' expect: False True
