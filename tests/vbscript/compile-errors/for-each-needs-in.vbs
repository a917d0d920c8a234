For Each x Of a
Next
' expect error: 1046 at 1:11
' expect text: Expected 'In'
