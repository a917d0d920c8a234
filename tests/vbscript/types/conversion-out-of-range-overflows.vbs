Sub Try(code)
  On Error Resume Next
  x = Eval(code)
  WScript.Echo code, Err.Number
End Sub
Try "CInt(32767.4)"
Try "CInt(32768)"
Try "CByte(-1)"
Try "CByte(256)"
Try "CLng(2147483648)"
' expect: CInt(32767.4) 0
' expect: CInt(32768) 6
' expect: CByte(-1) 6
' expect: CByte(256) 6
' expect: CLng(2147483648) 6
