WScript.Echo AscW("A"), AscW(ChrW(8364)), AscW(ChrW(65535)), AscW(ChrW(32768)), TypeName(AscW("A"))
' expect: 65 8364 -1 -32768 Integer
