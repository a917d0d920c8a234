For d = #2024-02-28# To #2024-03-01#
  s = s & Day(d) & " "
Next
WScript.Echo Trim(s)
' expect: 28 29 1
