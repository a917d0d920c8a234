WScript.Echo "before"
' expect: before
Execute "Const a = 1 + 1"
' expect error: 1045
' expect text: Expected literal constant
