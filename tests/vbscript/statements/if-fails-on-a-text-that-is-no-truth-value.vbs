s = "perhaps"
If s Then WScript.Echo "never"
' expect error: 13 at 2:0
