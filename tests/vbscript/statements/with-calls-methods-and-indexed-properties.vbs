Set d = CreateObject("Scripting.Dictionary")
With d
  .Add "a", 1
  .Item("b") = 2
  .Item("a") = .Item("a") + .Item("b")
  WScript.Echo .Count, .Item("a"), .Exists("b")
End With
' expect: 2 3 True
