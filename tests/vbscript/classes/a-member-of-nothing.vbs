Set o = Nothing
o.Open
' expect error: 91 at 2:0
