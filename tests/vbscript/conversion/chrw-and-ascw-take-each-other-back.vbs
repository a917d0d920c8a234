For i = -32768 To 32767 Step 257
  If AscW(ChrW(i)) <> i Then WScript.Echo "differs at", i
Next
WScript.Echo "done"
' expect: done
