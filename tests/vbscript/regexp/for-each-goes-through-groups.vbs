Set re = New RegExp
re.Pattern = "(\d+)-(\d+)-(\d+)"
For Each s In re.Execute("2026-05-01")(0).SubMatches
  WScript.Echo s
Next
' expect: 2026
' expect: 05
' expect: 01
