Set re = CreateObject("VBScript.RegExp")
re.Pattern = "^\d+$"
WScript.Echo re.Test("123") & " " & re.Test("12a")
' expect: True False
