Option Explicit

' text-statistics.vbs: lines, words and the most frequent words of text files.
'
'   cardwright script text-statistics.vbs [FILE ...]
'
' Without a file, the script counts itself.

Const ForReading = 1
Const TopWords = 5

Dim fso, path
Set fso = CreateObject("Scripting.FileSystemObject")

Class TextStatistics
  Private m_Lines, m_Characters, m_Words, m_Longest

  Private Sub Class_Initialize()
    m_Lines = 0
    m_Characters = 0
    Set m_Words = CreateObject("Scripting.Dictionary")
    m_Words.CompareMode = vbTextCompare
  End Sub

  Public Sub Read(path)
    Dim stream, words, line, match
    Set words = New RegExp
    words.Pattern = "[A-Za-z]+"
    words.Global = True
    Set stream = fso.OpenTextFile(path, ForReading)
    Do Until stream.AtEndOfStream
      line = stream.ReadLine
      m_Lines = m_Lines + 1
      m_Characters = m_Characters + Len(line)
      If Len(line) > Len(m_Longest) Then m_Longest = line
      For Each match In words.Execute(line)
        m_Words(match.Value) = m_Words(match.Value) + 1
      Next
    Loop
    stream.Close
  End Sub

  Public Property Get Lines()
    Lines = m_Lines
  End Property

  Public Property Get Characters()
    Characters = m_Characters
  End Property

  Public Property Get Longest()
    Longest = Trim(m_Longest)
  End Property

  Public Property Get WordCount()
    Dim n
    WordCount = 0
    For Each n In m_Words.Items
      WordCount = WordCount + n
    Next
  End Property

  Public Property Get DifferentWords()
    DifferentWords = m_Words.Count
  End Property

  ' "end 12, sub 9": the words that come most often, among those of some length.
  Public Function Frequent(howMany, minimumLength)
    Dim rest, word, best, found
    Set rest = CreateObject("Scripting.Dictionary")
    For Each word In m_Words.Keys
      If Len(word) >= minimumLength Then rest.Add word, m_Words(word)
    Next
    Do While found < howMany And rest.Count > 0
      best = rest.Keys()(0)
      For Each word In rest.Keys
        If rest(word) > rest(best) Then best = word
      Next
      If found > 0 Then Frequent = Frequent & ", "
      Frequent = Frequent & LCase(best) & " " & rest(best)
      rest.Remove best
      found = found + 1
    Loop
  End Function
End Class

Sub Report(path)
  Dim statistics
  Set statistics = New TextStatistics
  statistics.Read path
  WScript.Echo fso.GetFileName(path)
  With statistics
    WScript.Echo "  lines     ", .Lines
    WScript.Echo "  characters", .Characters
    WScript.Echo "  words     ", .WordCount, "(" & .DifferentWords & " different)"
    If .Lines > 0 Then WScript.Echo "  average   ", FormatNumber(.Characters / .Lines, 1), "characters a line"
    WScript.Echo "  longest   ", Left(.Longest, 60)
    WScript.Echo "  frequent  ", .Frequent(TopWords, 4)
  End With
End Sub

If WScript.Arguments.Count = 0 Then
  Report WScript.ScriptFullName
Else
  For Each path In WScript.Arguments
    On Error Resume Next
    Report path
    If Err.Number <> 0 Then WScript.StdErr.WriteLine path & ": " & Err.Description
    On Error GoTo 0
  Next
End If
