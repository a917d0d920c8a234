d = #11/21/2026#
For Each id In Array(1033, 2057, 1040, 1031, 2055, 1036, 3082, 1046, 2070, 1043, 1053, 1045, 1030, 1035, 1044)
  SetLocale id
  If CDate(FormatDateTime(d, vbLongDate)) <> d Then WScript.Echo id
  If CDate(FormatDateTime(d, vbShortDate)) <> d Then WScript.Echo id
  If CDbl(FormatNumber(-1234.5)) <> -1234.5 Then WScript.Echo id
Next
WScript.Echo "all"
' expect: all
