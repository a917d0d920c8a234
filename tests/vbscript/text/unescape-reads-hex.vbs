' expect: a b&c
' expect: 8364
WScript.Echo Unescape("a%20b%26c")
WScript.Echo AscW(Unescape("%u20ac"))
