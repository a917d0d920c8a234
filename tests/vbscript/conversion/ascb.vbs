WScript.Echo AscB("A"), AscB(ChrW(8364))
' expect: 65 172
