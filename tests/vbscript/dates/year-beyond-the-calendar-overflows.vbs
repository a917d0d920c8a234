WScript.Echo Year(2958466)
' expect error: 6 at 1:0
