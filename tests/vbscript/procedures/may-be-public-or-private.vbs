Public Sub A()
  WScript.Echo "public"
End Sub
Private Sub B()
  WScript.Echo "private"
End Sub
A
B
' expect: public
' expect: private
