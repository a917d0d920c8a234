For i = 1 To 3 : x = x + i : Next
Do While x > 4 : x = x - 1 : Loop
Select Case x : Case 4 : WScript.Echo "four" : Case Else : WScript.Echo x : End Select
' expect: four
