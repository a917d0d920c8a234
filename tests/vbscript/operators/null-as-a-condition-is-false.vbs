If Null Then
  WScript.Echo "taken"
Else
  WScript.Echo "not taken"
' expect: not taken
End If
If Not Null Then
  WScript.Echo "taken"
Else
  WScript.Echo "not taken either"
' expect: not taken either
End If
