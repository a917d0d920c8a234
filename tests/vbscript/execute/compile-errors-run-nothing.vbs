On Error Resume Next
x = 1
Execute "x = 2 : Exit For"
WScript.Echo x, Err.Number, Err.Description
' expect: 1 1039 Invalid 'exit' statement
