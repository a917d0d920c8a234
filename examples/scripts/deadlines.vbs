Option Explicit

' deadlines.vbs: when the wells of a list are due for their next inspection.
'
'   cardwright script deadlines.vbs [FILE [DAY]]
'
' FILE is a text with one well a line, "name;last inspection;months between inspections", dates as 2024-03-31.
' Without it, the short list below is used. DAY is the day to count from; without it, today.

Const ForReading = 1

Dim fso, lines, today, line, site
Set fso = CreateObject("Scripting.FileSystemObject")

Class Well
  Public Name, LastSeen, Months

  ' The last day of a month stays the last day: a month after the 31st of January is the end of February.
  Public Default Property Get Due()
    Due = DateAdd("m", Months, LastSeen)
  End Property

  ' Inspectors don't work at the weekend; what is due then is due on Monday.
  Public Property Get WorkingDay()
    WorkingDay = Due
    Do While Weekday(WorkingDay, vbMonday) > 5
      WorkingDay = WorkingDay + 1
    Loop
  End Property
End Class

Function ParseDay(text)
  Dim pattern, parts
  Set pattern = New RegExp
  pattern.Pattern = "^\s*(\d{4})-(\d\d)-(\d\d)\s*$"
  If Not pattern.Test(text) Then Err.Raise 13, "deadlines", """" & text & """ is no day like 2024-03-31"
  Set parts = pattern.Execute(text)(0).SubMatches
  ParseDay = DateSerial(parts(0), parts(1), parts(2))
End Function

Function ParseWell(line)
  Dim fields
  fields = Split(line, ";")
  If UBound(fields) <> 2 Then Err.Raise 5, "deadlines", "Not three fields: " & line
  Set ParseWell = New Well
  ParseWell.Name = Trim(fields(0))
  ParseWell.LastSeen = ParseDay(fields(1))
  ParseWell.Months = CInt(fields(2))
End Function

Function ReadLines(path)
  Dim stream
  ReadLines = Array()
  Set stream = fso.OpenTextFile(path, ForReading)
  ' ReadAll fails at the end of a stream, and an empty file is all end.
  If Not stream.AtEndOfStream Then ReadLines = Split(Replace(stream.ReadAll, vbCr, ""), vbLf)
  stream.Close
End Function

Function InDays(n)
  Select Case True
    Case n < 0
      InDays = -n & " days late"
    Case n = 0
      InDays = "today"
    Case Else
      InDays = "in " & n & " days"
  End Select
End Function

Function IsoDate(moment)
  IsoDate = Year(moment) & "-" & Right("0" & Month(moment), 2) & "-" & Right("0" & Day(moment), 2)
End Function

lines = Array("North field;2024-01-31;1", "Old mill;2023-11-15;6", "Quarry;2024-02-10;12")
today = Date
If WScript.Arguments.Count > 0 Then lines = ReadLines(WScript.Arguments(0))
If WScript.Arguments.Count > 1 Then today = ParseDay(WScript.Arguments(1))

For Each line In lines
  If Trim(line) <> "" Then
    Set site = ParseWell(line)
    WScript.Echo IsoDate(site.WorkingDay), WeekdayName(Weekday(site.WorkingDay), True), site.Name & ":", _
      InDays(DateDiff("d", today, site.WorkingDay))
  End If
Next
