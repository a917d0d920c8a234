WScript.Echo 1.0, 100.0, -5.0, 0.0, 1E3, 3E0
' expect: 1 100 -5 0 1000 3
