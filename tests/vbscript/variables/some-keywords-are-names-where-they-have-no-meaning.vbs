Dim property, default, step, explicit, error
property = 1
default = 2
step = 3
explicit = 4
error = 5
WScript.Echo property, default, step, explicit, error
' expect: 1 2 3 4 5
