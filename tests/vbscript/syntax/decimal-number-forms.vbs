WScript.Echo 10.
WScript.Echo .5
WScript.Echo 34e5
WScript.Echo 1E-2
WScript.Echo 2.5e+1
WScript.Echo 010
WScript.Echo 1e-94938484
' expect: 10
' expect: 0.5
' expect: 3400000
' expect: 0.01
' expect: 25
' expect: 10
' expect: 0
