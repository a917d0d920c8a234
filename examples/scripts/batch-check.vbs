Option Explicit

' batch-check.vbs: one line for each form project, for a nightly job.
'
'   cardwright script batch-check.vbs PROJECT ...
'
' A project is good when it has a theme, when the file has a section for each control that the form counts, and when
' every control that must be filled in is bound to an attribute. Exit status 0 when all are good, 1 otherwise.

Const statusBad = 1, statusUsage = 2

Dim fso, path, fault, badCount

' What is wrong with a project, "" when nothing is.
Function FaultOf(path)
  Dim ini, count, i, section
  FaultOf = ""
  ' CIni makes a file that is not there, so the question comes first.
  If Not fso.FileExists(path) Then
    FaultOf = "there is no such file"
    Exit Function
  End If
  Set ini = CreateObject("Cardwright.CIni")
  ini.FileName = path
  If IsEmpty(ini.GetValue("FORM", "ThemeName")) Then
    FaultOf = "the form has no theme"
    Exit Function
  End If
  count = ini.GetValue("FORM", "ControlsNumber", 0)
  If Not IsNumeric(count) Then
    FaultOf = "the number of controls is """ & count & """"
    Exit Function
  End If
  For i = 1 To CInt(count)
    section = "CONTROLS_" & i
    FaultOf = FaultOfControl(ini, section)
    If FaultOf <> "" Then Exit Function
  Next
End Function

Function FaultOfControl(ini, section)
  FaultOfControl = ""
  If IsEmpty(ini.GetValue(section, "Type")) Then
    FaultOfControl = section & " is missing, or has no type"
  ElseIf LCase(ini.GetValue(section, "IsNeeded", "False")) = "true" And IsEmpty(ini.GetValue(section, "Attribute")) Then
    FaultOfControl = ini.GetValue(section, "UserName", section) & " must be filled in, but is bound to nothing"
  End If
End Function

If WScript.Arguments.Count = 0 Then
  WScript.StdErr.WriteLine "usage: cardwright script batch-check.vbs PROJECT ..."
  WScript.Quit statusUsage
End If

Set fso = CreateObject("Scripting.FileSystemObject")
badCount = 0
For Each path In WScript.Arguments
  ' A project that can't even be read is as bad as one with a fault, and must not end the run.
  On Error Resume Next
  fault = FaultOf(path)
  If Err.Number <> 0 Then fault = Err.Description
  On Error GoTo 0
  If fault = "" Then
    WScript.Echo "good  " & path
  Else
    WScript.Echo "BAD   " & path & ": " & fault
    badCount = badCount + 1
  End If
Next
WScript.Echo WScript.Arguments.Count & " looked at, " & badCount & " bad"
If badCount > 0 Then WScript.Quit statusBad
