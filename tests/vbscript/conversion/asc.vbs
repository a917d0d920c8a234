WScript.Echo Asc("A"), Asc("abc"), Asc(ChrW(8364)), Asc(ChrW(937)), Asc(5), TypeName(Asc("A"))
' expect: 65 97 128 63 53 Integer
