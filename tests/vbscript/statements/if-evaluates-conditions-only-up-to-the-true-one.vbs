Function Tell(answer, name)
  WScript.Echo name
  Tell = answer
End Function

If Tell(False, "first") Then
ElseIf Tell(True, "second") Then
ElseIf Tell(True, "third") Then
End If
' expect: first
' expect: second
