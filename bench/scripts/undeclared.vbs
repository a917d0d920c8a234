' Procedures whose variables nobody declared, as most scripts in use are written. Whether such a name is the
' procedure's own or the script's is known only when it runs. The peers use local variables.
Function Balance(rows)
  sum = 0
  For row = 1 To rows
    value = row Mod 7
    If value > 3 Then
      sum = sum + value * 2
    Else
      sum = sum - 1
    End If
  Next
  Balance = sum
End Function

Dim turn, total
total = 0
For turn = 1 To 1200
  total = (total + Balance(2500 + turn)) Mod 1000003
Next
WScript.Echo total
