' Long enough for the library to make machine code of the pattern, which has to agree with what came before.
Set re = New RegExp
re.Pattern = "\1{1,3}|(x)y"
re.Global = True
For i = 1 To 3
  WScript.Echo re.Execute(String(1000, "z")).Count
Next
' expect: 1001
' expect: 1001
' expect: 1001
