Set re = New RegExp
re.Pattern = "b"
Set ms = re.Execute("abc")
WScript.Echo TypeName(ms.Count) & " " & TypeName(ms(0).FirstIndex) & " " & TypeName(ms(0).Length) & " " & TypeName(ms(0).Value)
' expect: Long Long Long String
