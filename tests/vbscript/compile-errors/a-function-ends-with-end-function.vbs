Function F()
End Sub
' expect error: 1015 at 2:4
' expect text: Expected 'Function'
