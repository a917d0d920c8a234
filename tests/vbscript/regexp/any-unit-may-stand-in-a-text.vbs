Set re = New RegExp
re.Pattern = "\0|" & ChrW(&HD83D)
re.Global = True
Set ms = re.Execute("a" & Chr(0) & ChrW(&HD83D))
WScript.Echo ms.Count & " " & ms(0).FirstIndex & " " & ms(1).FirstIndex
' expect: 2 1 2
