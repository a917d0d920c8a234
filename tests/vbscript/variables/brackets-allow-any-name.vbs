[my total] = 5
[my total] = [my total] + 1
[1st] = "a"
[a.b] = "c"
WScript.Echo [my total], [1st], [a.b]
' expect: 6 a c
