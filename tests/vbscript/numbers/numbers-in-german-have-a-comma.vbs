' locale: de-DE
WScript.Echo 1.5, CDbl("1.234,5"), CDbl("1.5")
' expect: 1,5 1234,5 15
