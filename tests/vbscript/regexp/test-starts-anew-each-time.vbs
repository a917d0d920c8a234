Set re = New RegExp
re.Pattern = "a"
re.Global = True
WScript.Echo re.Test("ba") & " " & re.Test("ba") & " " & re.Test("ba")
' expect: True True True
