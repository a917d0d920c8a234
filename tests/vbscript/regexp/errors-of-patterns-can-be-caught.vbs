Set re = New RegExp
On Error Resume Next
For Each p In Array("(", "[", "*", "\", "[b-a]", "a")
  re.Pattern = p
  Err.Clear
  re.Test "a"
  WScript.Echo p & " " & Err.Number
Next
' expect: ( 5020
' expect: [ 5019
' expect: * 5018
' expect: \ 5017
' expect: [b-a] 5021
' expect: a 0
