Set x = CreateObject("No.Such.Class")
' expect error: 429 at 1:0
