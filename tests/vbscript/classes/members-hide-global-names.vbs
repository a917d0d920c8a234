name = "global"
Function Describe()
  Describe = "global function"
End Function
Class Thing
  Public Name
  Public Function Describe()
    Describe = "member"
  End Function
  Public Function Told()
    Told = Name & " " & Describe()
  End Function
End Class

Set t = New Thing
t.Name = "field"
WScript.Echo t.Told
' expect: field member
WScript.Echo name, Describe()
' expect: global global function
