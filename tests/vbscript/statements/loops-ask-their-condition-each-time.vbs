Dim asked
Function Goes()
  asked = asked + 1
  Goes = asked < 4
End Function

Do While Goes()
  n = n + 1
Loop
WScript.Echo n, asked
' expect: 3 4
