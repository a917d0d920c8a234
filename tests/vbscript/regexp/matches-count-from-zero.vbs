Set re = New RegExp
re.Pattern = "\w"
re.Global = True
Set ms = re.Execute("abc")
WScript.Echo ms(0) & ms.Item(1) & ms.Item(2).Value
For i = 0 To ms.Count - 1
  WScript.Echo ms(i).FirstIndex & " " & ms(i).Length
Next
' expect: abc
' expect: 0 1
' expect: 1 1
' expect: 2 1
