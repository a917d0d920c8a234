' expect: 201
' expect: 233
' expect: 223
WScript.Echo AscW(UCase(ChrW(233)))
WScript.Echo AscW(LCase(ChrW(201)))
WScript.Echo AscW(UCase(ChrW(223)))
