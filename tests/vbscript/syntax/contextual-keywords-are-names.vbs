Dim step, property, default, error, explicit, erase
step = 1
property = 2
default = 3
error = 4
explicit = 5
erase = 6
WScript.Echo step & property & default & error & explicit & erase
' expect: 123456
