Next
' expect error: 1055 at 1:0
' expect text: Unexpected 'Next'
