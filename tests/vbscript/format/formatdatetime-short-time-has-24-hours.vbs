WScript.Echo FormatDateTime(#3:05:59 AM#, 4), FormatDateTime(#12:00:00 AM#, 4), FormatDateTime(#11:59:59 PM#, 4)
' expect: 03:05 00:00 23:59
