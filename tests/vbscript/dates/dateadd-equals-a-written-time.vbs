WScript.Echo DateAdd("h", 1, #1/1/2026 1:00:00 AM#) = #1/1/2026 2:00:00 AM#
' expect: True
WScript.Echo DateAdd("n", 1, #10:00:00 AM#) = #10:01:00 AM#
' expect: True
