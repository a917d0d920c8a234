' locale: it-IT
WScript.Echo 1.5, 1.5 + 1
' expect: 1,5 2,5
