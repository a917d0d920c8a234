Function IsoWeek(d)
  IsoWeek = DatePart("ww", d, vbMonday, vbFirstFourDays)
  If IsoWeek > 52 Then
    If DatePart("ww", d + 7, vbMonday, vbFirstFourDays) = 2 Then IsoWeek = 1
  End If
End Function
WScript.Echo IsoWeek(#12/29/2003#), IsoWeek(#12/31/2020#), IsoWeek(#1/3/2027#), IsoWeek(#12/31/2007#)
' expect: 1 53 53 1
