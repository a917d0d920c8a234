o = 5
o.Open
' expect error: 424 at 2:0
' expect text: Object required: 'o'
