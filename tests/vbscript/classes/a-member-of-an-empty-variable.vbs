Dim o
x = o.Name
' expect error: 424 at 2:0
