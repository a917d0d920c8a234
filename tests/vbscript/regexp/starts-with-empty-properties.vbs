Set re = New RegExp
WScript.Echo "[" & re.Pattern & "] " & re.Global & " " & re.IgnoreCase & " " & re.MultiLine
' expect: [] False False False
