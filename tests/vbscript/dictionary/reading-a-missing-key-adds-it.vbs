' expect: 1
' expect: True
' expect: True
Set d = CreateObject("Scripting.Dictionary")
x = d("new")
WScript.Echo d.Count
WScript.Echo IsEmpty(d("new"))
WScript.Echo d.Exists("new")
