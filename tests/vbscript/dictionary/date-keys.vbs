' expect: True
' expect: False
Set d = CreateObject("Scripting.Dictionary")
d.Add DateSerial(2020, 1, 2), "x"
WScript.Echo d.Exists(DateSerial(2020, 1, 2))
WScript.Echo d.Exists(DateSerial(2020, 1, 3))
