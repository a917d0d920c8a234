Class C
  Public [End], [Loop], [Rem], [If]
End Class
Set o = New C
o.End = 1
o.Loop = 2
o.Rem = 3
o.If = 4
WScript.Echo o.end & o.loop & o.rem & o.if
' expect: 1234
