' expect: olleh
s = "hello" : r = ""
For i = Len(s) To 1 Step -1
  r = r & Mid(s, i, 1)
Next
WScript.Echo r
