' expect: a%20b%26c
' expect: %E9%u20AC
WScript.Echo Escape("a b&c")
WScript.Echo Escape(ChrW(233) & ChrW(8364))
