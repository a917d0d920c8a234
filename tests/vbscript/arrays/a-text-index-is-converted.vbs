Dim a(3)
i = "2"
a(i) = 7
WScript.Echo a(2), a("2")
' expect: 7 7
