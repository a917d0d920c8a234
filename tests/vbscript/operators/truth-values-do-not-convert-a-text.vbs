text = "True"
WScript.Echo text = True, text > True
' expect: False True
