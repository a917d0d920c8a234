Dim tree(1)
tree(0) = Array(1, Array(2, Array(3, 4)))
copy = tree
tree(0)(1)(0) = 20
tree(0)(1)(1)(1) = 40
WScript.Echo tree(0)(1)(0), tree(0)(1)(1)(0), tree(0)(1)(1)(1)
' expect: 20 3 40
WScript.Echo copy(0)(1)(0), copy(0)(1)(1)(1)
' expect: 2 4

Class Box
  Public sides
  Public Sub Fill
    sides = Array(Array(Array(5, 6)))
    sides(0)(0)(1) = 60
  End Sub
End Class
Set made = New Box
made.Fill
WScript.Echo made.sides(0)(0)(1)
' expect: 60

Sub Change(place)
  Dim mine
  mine = Array(Array(Array(7)))
  mine(0)(0)(0) = 70
  Set mine(0)(0)(0) = made
  place(0)(1)(0) = mine(0)(0)(0).sides(0)(0)(0)
End Sub
Change tree
WScript.Echo tree(0)(1)(0)
' expect: 5

' An index that runs code may replace the arrays on the way.
Function Cut
  tree(0) = 0
  Cut = 1
End Function
On Error Resume Next
tree(0)(1)(Cut) = 9
WScript.Echo Err.Number, tree(0)
' expect: 13 0
