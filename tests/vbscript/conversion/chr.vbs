WScript.Echo Chr(65), Chr(65.5), Chr("66"), Len(Chr(0)), AscW(Chr(128)), AscW(Chr(233)), AscW(Chr(255))
' expect: A B B 1 8364 233 255
