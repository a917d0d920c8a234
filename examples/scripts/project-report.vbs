Option Explicit

' project-report.vbs: what is in a form project, and what its author may have overlooked.
'
'   cardwright script project-report.vbs [--summary=FILE] [PROJECT ...]
'
' Prints an overview of each project and writes a summary with all details to FILE; without that word, to a file
' in the folder for temporary files.
'
' Without a project, the example form next to this folder is looked at. The exit status is 0 when there is
' nothing to complain about, 1 when there are warnings or errors, and 2 when the command line is wrong or a
' project could not be read. That makes the script usable in a nightly check.

' ==== Constants ===========================================================================================

' How serious a finding is. Hints don't change the exit status.
Const sevHint = 0, sevWarning = 1, sevError = 2

' Own errors, far from the numbers of the language
Const errNoFile = 20001, errNoProject = 20002, errNoSuch = 20003, errUsage = 20004

' Exit status
Const statusClean = 0, statusFindings = 1, statusFailed = 2

Const ForReading = 1, TemporaryFolder = 2
Const ScriptMarker = "[SCRIPT]"
Const LongProcedure = 40
Const scaleTwips = 1, TwipsPerPixel = 15

' ==== What all parts of the program share =================================================================

Dim fso, kinds, options

' ==== Classes: small helpers ==============================================================================

' Counts how often each key comes by. The case of keys doesn't matter; the first spelling is shown.
Class Tally
  Private m_Counts, m_Spelling

  Private Sub Class_Initialize()
    Set m_Counts = CreateObject("Scripting.Dictionary")
    Set m_Spelling = CreateObject("Scripting.Dictionary")
  End Sub

  ' tally("TextBox") is the number of text boxes, 0 for what never came by.
  Public Default Property Get Times(key)
    Times = 0
    If m_Counts.Exists(LCase(key)) Then Times = m_Counts(LCase(key))
  End Property

  Public Sub Add(key)
    Dim folded
    folded = LCase(key)
    If Not m_Counts.Exists(folded) Then m_Spelling.Add folded, key
    ' A key that is not there yet answers Empty, which counts as 0.
    m_Counts(folded) = m_Counts(folded) + 1
  End Sub

  ' The keys as they were first spelled, in alphabetical order.
  Public Function Keys()
    Dim list
    list = m_Spelling.Items
    SortBy list, GetRef("ComesBeforeAsText")
    Keys = list
  End Function
End Class

' A table of text with aligned columns.
Class TextTable
  Private m_Titles, m_AreRight, m_Widths, m_Rows

  Private Sub Class_Initialize()
    m_Titles = Array()
    m_AreRight = Array()
    m_Widths = Array()
    m_Rows = Array()
  End Sub

  ' The titles, separated by bars. The columns of titles that begin with ">" are aligned to the right.
  Public Property Let Columns(titles)
    Dim title
    For Each title In Split(titles, "|")
      AppendTo m_AreRight, (Left(title, 1) = ">")
      If Left(title, 1) = ">" Then title = Mid(title, 2)
      AppendTo m_Titles, title
      AppendTo m_Widths, Len(title)
    Next
  End Property

  ' `cells` is an array with a value for each column; missing ones stay blank.
  Public Sub AddRow(ByVal cells)
    Dim i
    If UBound(cells) > UBound(m_Titles) Then Err.Raise 9, "TextTable", "There are more cells than columns"
    ReDim Preserve cells(UBound(m_Titles))
    For i = 0 To UBound(cells)
      cells(i) = CStr(cells(i))
      If Len(cells(i)) > m_Widths(i) Then m_Widths(i) = Len(cells(i))
    Next
    AppendTo m_Rows, cells
  End Sub

  Public Default Property Get Text()
    Dim i, rules, row
    rules = m_Titles
    For i = 0 To UBound(rules)
      rules(i) = String(m_Widths(i), "-")
    Next
    Text = Line(m_Titles) & vbCrLf & Line(rules)
    For Each row In m_Rows
      Text = Text & vbCrLf & Line(row)
    Next
  End Property

  Private Function Line(cells)
    Dim i, padded
    padded = cells
    For i = 0 To UBound(padded)
      padded(i) = Pad(padded(i), m_Widths(i), m_AreRight(i))
    Next
    Line = RTrim("  " & Join(padded, "  "))
  End Function
End Class

' ==== Classes: findings ===================================================================================

' One thing that a user should look at.
Class Finding
  Public Severity, Place, Message

  Public Default Property Get Text()
    Text = SeverityName(Severity) & ": " & Place & ": " & Message
  End Property
End Class

Class FindingList
  Private m_Findings

  Private Sub Class_Initialize()
    m_Findings = Array()
  End Sub

  Public Sub Add(severity, place, message)
    Dim f
    Set f = New Finding
    f.Severity = severity
    f.Place = place
    f.Message = message
    AppendTo m_Findings, f
  End Sub

  ' The findings of one severity, as an array.
  Public Function OfSeverity(severity)
    Dim f, list
    list = Array()
    For Each f In m_Findings
      If f.Severity = severity Then AppendTo list, f
    Next
    OfSeverity = list
  End Function

  Public Property Get Count()
    Count = UBound(m_Findings) + 1
  End Property

  Public Function CountOf(severity)
    CountOf = UBound(OfSeverity(severity)) + 1
  End Function

  ' "2 errors, 1 warning"
  Public Property Get Summary()
    Dim severity, n, parts
    Summary = "nothing to report"
    If Count = 0 Then Exit Property
    parts = Array()
    For Each severity In Array(sevError, sevWarning, sevHint)
      n = CountOf(severity)
      If n > 0 Then AppendTo parts, Plural(n, SeverityName(severity))
    Next
    Summary = Join(parts, ", ")
  End Property
End Class

' ==== Classes: the kinds of controls ======================================================================

' What the program knows about one type of control.
Class ControlKind
  Public TypeName, Prefix, HasValue
  Private m_Events

  Public Property Let Events(list)
    Dim name
    Set m_Events = CreateObject("Scripting.Dictionary")
    m_Events.CompareMode = vbTextCompare
    For Each name In Split(list, " ")
      m_Events(name) = True
    Next
  End Property

  Public Function HasEvent(name)
    HasEvent = m_Events.Exists(name)
  End Function

  Public Property Get EventNames()
    EventNames = Join(m_Events.Keys, ", ")
  End Property
End Class

' All types, by name. The type text of a project may be in any case.
Class KindCatalogue
  Private m_Kinds

  Private Sub Class_Initialize()
    Set m_Kinds = CreateObject("Scripting.Dictionary")
    m_Kinds.CompareMode = vbTextCompare
    '        type                 prefix  value  events
    Describe "Form",              "",     False, "AfterOkClick BeforeCancelClick BeforeOkClick Initialize " & _
                                                 "AfterSetAttributes"
    Describe "Label",             "lbl",  False, "OnClick"
    Describe "Frame",             "fra",  False, "OnClick"
    Describe "CommandButton",     "cmd",  False, "OnClick"
    Describe "CheckBox",          "chk",  True,  "OnClick"
    Describe "OptionButton",      "opt",  True,  "OnClick"
    Describe "TextBox",           "txt",  True,  "OnChange OnClick"
    Describe "TextBoxMultiline",  "txt",  True,  "OnChange OnClick"
    Describe "ComboBox",          "cbo",  True,  "OnChange OnClick"
    Describe "ListBox",           "lst",  True,  "OnClick OnItemCheck"
    Describe "ResourceSelector",  "res",  True,  "AfterButtonClick BeforeButtonClick OnChange OnClick"
    Describe "ThemeSelector",     "thm",  True,  "OnClick"
    Describe "AttributeSelector", "att",  True,  "OnClick"
    Describe "FontSelector",      "fnt",  True,  "AfterButtonClick BeforeButtonClick OnChange OnClick"
    Describe "ColorSelector",     "col",  True,  "OnClick"
  End Sub

  Private Sub Describe(typeName, prefix, hasValue, events)
    Dim kind
    Set kind = New ControlKind
    kind.TypeName = typeName
    kind.Prefix = prefix
    kind.HasValue = hasValue
    kind.Events = events
    m_Kinds.Add typeName, kind
  End Sub

  Public Function Knows(typeName)
    Knows = m_Kinds.Exists(typeName)
  End Function

  Public Default Property Get Kind(typeName)
    ' Reading an unknown key would add it, and the next test would find it.
    If Not Knows(typeName) Then Err.Raise errNoSuch, "KindCatalogue", "There is no control type " & typeName
    Set Kind = m_Kinds(typeName)
  End Property

  ' Whether any type has such an event: then a procedure X_Event is meant for a control X.
  Public Function AnyHasEvent(eventName)
    Dim kind
    AnyHasEvent = True
    For Each kind In m_Kinds.Items
      If kind.HasEvent(eventName) Then Exit Function
    Next
    AnyHasEvent = False
  End Function
End Class

' ==== Classes: the parts of a project =====================================================================

' One control, as its section of the project describes it.
Class ControlInfo
  Public Number, TypeText, WidgetName, UserName, Container, Attribute, IsNeeded

  ' A control stands for its name wherever a text is wanted.
  Public Default Property Get Label()
    Label = UserName
    If UserName = "" Then Label = "(control " & Number & ")"
  End Property

  Public Sub Read(ini, sectionNumber)
    Dim section
    Number = sectionNumber
    section = "CONTROLS_" & sectionNumber
    TypeText = ValueOf(ini, section, "Type")
    WidgetName = ValueOf(ini, section, "Name")
    If WidgetName = "" Then WidgetName = "object_" & (sectionNumber + 1)
    UserName = ValueOf(ini, section, "UserName")
    If UserName = "" Then UserName = WidgetName
    Container = ValueOf(ini, section, "Container")
    Attribute = ValueOf(ini, section, "Attribute")
    IsNeeded = IsTrueText(ValueOf(ini, section, "IsNeeded"))
  End Sub

  Public Property Get IsKnown()
    IsKnown = kinds.Knows(TypeText)
  End Property

  Public Property Get Kind()
    Set Kind = kinds(TypeText)
  End Property

  ' The type in its usual spelling, where it has one.
  Public Property Get TypeName()
    TypeName = TypeText
    If IsKnown Then TypeName = Kind.TypeName
  End Property
End Class

' A procedure of the form's script.
Class ProcedureInfo
  Public Kind, Name, Parameters, FirstLine, LastLine
  Public IsFound  ' whether the form finds it when its event comes

  Public Default Property Get Header()
    Header = Kind & " " & Name & "(" & Parameters & ")"
  End Property

  Public Property Get LineCount()
    LineCount = LastLine - FirstLine + 1
  End Property

  ' The name splits at its last underscore: my_box_OnClick belongs to my_box.
  Public Property Get ControlName()
    ControlName = ""
    If InStrRev(Name, "_") > 1 Then ControlName = Left(Name, InStrRev(Name, "_") - 1)
  End Property

  Public Property Get EventName()
    EventName = ""
    If InStrRev(Name, "_") > 1 Then EventName = Mid(Name, InStrRev(Name, "_") + 1)
  End Property
End Class

' The script after the marker: its procedures, and every word that it uses.
Class ScriptInfo
  Public Language, CodeLines, OptionExplicitLine, HasBrokenMarker
  Private m_Lines, m_Procedures, m_Words
  Private m_Header, m_Footer, m_Texts, m_Comment, m_Keyword

  Private Sub Class_Initialize()
    m_Lines = Array()
    m_Procedures = Array()
    Set m_Words = New Tally
    CodeLines = 0
    OptionExplicitLine = 0
    HasBrokenMarker = False
  End Sub

  Public Property Get IsBasic()
    IsBasic = (LCase(Language) = "vbscript")
  End Property

  Public Property Get IsJava()
    IsJava = (LCase(Language) = "jscript")
  End Property

  Public Property Get HasOptionExplicit()
    HasOptionExplicit = (OptionExplicitLine > 0)
  End Property

  ' What the form looks for when an event comes: the keyword at the start of a line, one blank, the name, and the
  ' bracket right after it.
  Public Function Wanted(name)
    Wanted = m_Keyword & name & "("
  End Function

  Public Property Get Procedures()
    Procedures = m_Procedures
  End Property

  ' How often the script uses a name, its own definition not counted.
  Public Function Mentions(name)
    Mentions = m_Words(name)
  End Function

  ' Reads a whole project file. What comes before the marker is none of the script's business.
  Public Sub Read(content)
    Dim at, tail, lineEnd
    at = InStr(1, content, ScriptMarker & vbCrLf, vbTextCompare)
    HasBrokenMarker = (at = 0 And Pattern("(^|\n)\[SCRIPT\]\n", False).Test(content))
    If at = 0 Then Exit Sub
    tail = Mid(content, at + Len(ScriptMarker & vbCrLf))
    lineEnd = InStr(tail, vbCrLf)
    If lineEnd = 0 Then Exit Sub
    Language = Trim(Left(tail, lineEnd - 1))
    m_Lines = Split(Mid(tail, lineEnd + 2), vbCrLf)
    ChooseLanguage
    ReadLines
  End Sub

  ' Of a script in a third language only the words are of interest: its header fits no line.
  Private Sub ChooseLanguage()
    m_Keyword = "Sub "
    Set m_Texts = Pattern("""(?:[^""]|"""")*""", True)
    Set m_Comment = Pattern("'.*$", False)
    Set m_Header = Pattern("[^\s\S]", False)
    Set m_Footer = Pattern("^\s*end\s+(sub|function)\b", False)
    If IsBasic Then
      Set m_Header = Pattern("^\s*(?:(?:public|private)\s+)?(sub|function)\s+(\w+)\s*(?:\(([^)]*)\))?", False)
    ElseIf IsJava Then
      m_Keyword = "function "
      Set m_Texts = Pattern("""(?:[^""\\]|\\.)*""|'(?:[^'\\]|\\.)*'", True)
      Set m_Comment = Pattern("//.*$", False)
      Set m_Header = Pattern("^\s*(function)\s+(\w+)\s*\(([^)]*)\)", False)
      Set m_Footer = Pattern("^}", False)
    End If
  End Sub

  Private Sub ReadLines()
    Dim explicit, i, code, matches, current
    Set current = Nothing
    Set explicit = Pattern("^\s*option\s+explicit\b", False)
    For i = 0 To UBound(m_Lines)
      code = CodeOf(m_Lines(i))
      If Trim(code) <> "" Then CodeLines = CodeLines + 1
      If explicit.Test(code) And Not HasOptionExplicit Then OptionExplicitLine = i + 1
      Set matches = m_Header.Execute(code)
      If matches.Count > 0 Then
        Set current = NewProcedure(matches(0), i + 1)
        CountWords current.Parameters
        ' The rest of the header line, as in "Sub Tell(what): lblHint.Text = what"
        CountWords Mid(code, matches(0).Length + 1)
      Else
        CountWords code
      End If
      If Not current Is Nothing Then
        current.LastLine = i + 1
        If m_Footer.Test(code) Then Set current = Nothing
      End If
    Next
  End Sub

  Private Function NewProcedure(match, line)
    Dim p
    Set p = New ProcedureInfo
    p.Kind = UCase(Left(match.SubMatches(0), 1)) & LCase(Mid(match.SubMatches(0), 2))
    p.Name = match.SubMatches(1)
    p.Parameters = Trim(match.SubMatches(2) & "")
    p.FirstLine = line
    p.LastLine = line
    p.IsFound = (StrComp(Left(m_Lines(line - 1), Len(Wanted(p.Name))), Wanted(p.Name), vbTextCompare) = 0)
    AppendTo m_Procedures, p
    Set NewProcedure = p
  End Function

  ' The line without its comment. A text stays only where it is a single word, for Controls("txtName") uses the
  ' control as much as txtName does; what a message says to the user does not.
  Private Function CodeOf(line)
    Dim code, match, inner
    code = line
    For Each match In m_Texts.Execute(line)
      inner = Mid(match.Value, 2, Len(match.Value) - 2)
      If Not Pattern("^\w+$", False).Test(inner) Then inner = ""
      code = Replace(code, match.Value, " " & inner & " ", 1, 1)
    Next
    CodeOf = m_Comment.Replace(code, "")
    If IsBasic Then CodeOf = Pattern("(^|:)\s*rem\b.*$", False).Replace(CodeOf, "$1")
  End Function

  Private Sub CountWords(code)
    Dim match
    For Each match In Pattern("[A-Za-z]\w*", True).Execute(code)
      m_Words.Add match.Value
    Next
  End Sub
End Class

' A form project: its form, its controls, its script, and what was found in them.
Class Project
  Public Path, Title, Theme, FeatureType, StartMode, ScaleMode, Width, Height
  Public FileSize, Modified, DeclaredCount
  Public Script, Findings
  Private m_Controls, m_ByName

  Private Sub Class_Initialize()
    m_Controls = Array()
    Set m_ByName = CreateObject("Scripting.Dictionary")
    m_ByName.CompareMode = vbTextCompare
    Set Script = New ScriptInfo
    Set Findings = New FindingList
  End Sub

  Public Property Get Controls()
    Controls = m_Controls
  End Property

  Public Property Get ControlCount()
    ControlCount = UBound(m_Controls) + 1
  End Property

  ' project("txtName")
  Public Default Property Get Control(name)
    If Not m_ByName.Exists(name) Then Err.Raise errNoSuch, "Project", "There is no control " & name
    Set Control = m_ByName(name)
  End Property

  Public Function HasControl(name)
    HasControl = m_ByName.Exists(name)
  End Function

  ' The widget of that name, which is what containers are told by; Nothing where there is none.
  Public Function Widget(name)
    Dim c
    Set Widget = Nothing
    For Each c In m_Controls
      If StrComp(c.WidgetName, name, vbTextCompare) = 0 And Widget Is Nothing Then Set Widget = c
    Next
  End Function

  Public Sub Load(projectPath)
    Dim ini, file
    Path = fso.GetAbsolutePathName(projectPath)
    ' CIni makes a file that is not there, so the question comes first.
    If Not fso.FileExists(Path) Then Err.Raise errNoFile, "Project", "There is no such file"
    Set file = fso.GetFile(Path)
    FileSize = file.Size
    Modified = file.DateLastModified
    Set ini = CreateObject("Cardwright.CIni")
    ini.FileName = Path
    ReadForm ini
    ReadControls ini
    Script.Read ContentOf(Path)
  End Sub

  Private Sub ReadForm(ini)
    Dim count
    count = ValueOf(ini, "FORM", "ControlsNumber")
    If count = "" Then Err.Raise errNoProject, "Project", "This is no form project: there is no ControlsNumber"
    DeclaredCount = NumberOf(count)
    Title = ValueOf(ini, "FORM", "Text")
    Theme = ValueOf(ini, "FORM", "ThemeName")
    FeatureType = FeatureTypeName(NumberOf(ini.GetValue("FORM", "FeatureType", -1)))
    StartMode = ini.GetValue("FORM", "StartMode", "Always")
    ScaleMode = NumberOf(ini.GetValue("FORM", "ScaleMode", scaleTwips))
    Width = NumberOf(ValueOf(ini, "FORM", "Width"))
    Height = NumberOf(ValueOf(ini, "FORM", "Height"))
  End Sub

  Private Sub ReadControls(ini)
    Dim section, matches, numbers, n, c
    numbers = Array()
    For Each section In ini.Sections
      Set matches = Pattern("^CONTROLS_(\d+)$", False).Execute(section)
      If matches.Count > 0 Then AppendTo numbers, CLng(matches(0).SubMatches(0))
    Next
    SortBy numbers, GetRef("ComesBeforeAsNumber")
    For Each n In numbers
      Set c = New ControlInfo
      c.Read ini, n
      AppendTo m_Controls, c
      If Not m_ByName.Exists(c.UserName) Then m_ByName.Add c.UserName, c
    Next
  End Sub

  Public Function TypeCounts()
    Dim counts, c
    Set counts = New Tally
    For Each c In m_Controls
      counts.Add c.TypeName
    Next
    Set TypeCounts = counts
  End Function

  ' Attribute -> array of the controls bound to it
  Public Function Bindings()
    Dim map, c, list
    Set map = CreateObject("Scripting.Dictionary")
    map.CompareMode = vbTextCompare
    For Each c In m_Controls
      If c.Attribute <> "" Then
        list = Array()
        If map.Exists(c.Attribute) Then list = map(c.Attribute)
        AppendTo list, c
        map(c.Attribute) = list
      End If
    Next
    Set Bindings = map
  End Function
End Class

' ==== Classes: the checks =================================================================================

' Looks at a project and leaves what it finds with it. Each Check... sub is one rule.
Class Inspector
  Private m_Project, m_Findings

  Public Sub Inspect(project)
    Set m_Project = project
    Set m_Findings = project.Findings
    CheckCount
    CheckTypes
    CheckNames
    CheckNamingRules
    CheckContainers
    CheckSharedAttributes
    CheckUnused
    CheckScript
    CheckEventProcedures
    CheckUncalledProcedures
  End Sub

  Private Sub Note(severity, place, message)
    m_Findings.Add severity, place, message
  End Sub

  Private Sub CheckCount()
    If m_Project.DeclaredCount = m_Project.ControlCount Then Exit Sub
    Note sevError, "FORM", "ControlsNumber counts " & Plural(m_Project.DeclaredCount, "control") & _
      ", but there are sections for " & m_Project.ControlCount
  End Sub

  Private Sub CheckTypes()
    Dim c
    For Each c In m_Project.Controls
      If c.TypeText = "" Then
        Note sevError, c.Label, "the section has no type; there will be no such control"
      ElseIf Not c.IsKnown Then
        Note sevError, c.Label, "unknown type " & c.TypeText & "; the control will be left out"
      End If
    Next
  End Sub

  Private Sub CheckNames()
    Dim seen, c, identifier
    Set seen = New Tally
    Set identifier = Pattern("^[A-Za-z]\w*$", False)
    seen.Add "Form"
    For Each c In m_Project.Controls
      seen.Add c.UserName
      If seen(c.UserName) = 2 Then Note sevError, c.Label, "the name is used more than once"
      If m_Project.Script.CodeLines > 0 And Not identifier.Test(c.UserName) Then
        Note sevError, c.Label, "the script cannot have a variable of this name and will not start"
      End If
      If InStr(c.UserName, "=") > 0 Then Note sevError, c.Label, "the name has an equals sign; its stacking is lost"
    Next
  End Sub

  ' The house rule: the prefix of the type, then words that each begin with a capital.
  Private Sub CheckNamingRules()
    Dim c, rule, words
    Set words = Pattern("^[A-Z][A-Za-z0-9]*$", False)
    words.IgnoreCase = False
    For Each c In m_Project.Controls
      If c.IsKnown Then
        rule = c.Kind.Prefix
        If StrComp(Left(c.UserName, Len(rule)), rule, vbBinaryCompare) <> 0 Then
          Note sevHint, c.Label, "the name of a " & c.TypeName & " should begin with """ & rule & """"
        ElseIf Not words.Test(Mid(c.UserName, Len(rule) + 1)) Then
          Note sevHint, c.Label, "after """ & rule & """ the name should go on with a capital, letters and digits"
        End If
      End If
    Next
  End Sub

  Private Sub CheckContainers()
    Dim c, box
    For Each c In m_Project.Controls
      If c.Container <> "" Then
        Set box = m_Project.Widget(c.Container)
        If box Is Nothing Then
          Note sevError, c.Label, "there is no container " & c.Container
        ElseIf box.Number > c.Number Then
          Note sevError, c.Label, "its container " & box & " comes later; the control will be left out"
        ElseIf box.IsKnown And box.TypeName <> "Frame" Then
          Note sevWarning, c.Label, "its container " & box & " is a " & box.TypeName & ", not a Frame"
        End If
      End If
    Next
  End Sub

  ' Option buttons of one container share an attribute on purpose: together they are one choice.
  Private Sub CheckSharedAttributes()
    Dim bindings, attribute, list
    Set bindings = m_Project.Bindings
    For Each attribute In bindings.Keys
      list = bindings(attribute)
      If UBound(list) > 0 And Not AreOneChoice(list) Then
        Note sevWarning, attribute, "is bound to more than one control: " & Names(list)
      End If
    Next
  End Sub

  Private Function AreOneChoice(list)
    Dim c
    AreOneChoice = False
    For Each c In list
      If c.TypeName <> "OptionButton" Then Exit Function
      If StrComp(c.Container, list(0).Container, vbTextCompare) <> 0 Then Exit Function
    Next
    AreOneChoice = True
  End Function

  ' A control is of use when it is bound, when the script works with it, or when it is only there to be seen.
  Private Sub CheckUnused()
    Dim c, isMentioned
    For Each c In m_Project.Controls
      If c.IsKnown Then
        isMentioned = m_Project.Script.Mentions(c.UserName) > 0 Or HasEventProcedure(c)
        If c.IsNeeded And c.Attribute = "" Then Note sevWarning, c.Label, "must be filled in, but goes to no attribute"
        If c.Kind.HasValue And c.Attribute = "" And Not isMentioned Then
          Note sevWarning, c.Label, "is never used: no attribute, and the script does not mention it"
        End If
        If c.TypeName = "CommandButton" And Not isMentioned Then Note sevWarning, c.Label, "does nothing when clicked"
      End If
    Next
  End Sub

  Private Function HasEventProcedure(c)
    Dim p
    HasEventProcedure = True
    For Each p In m_Project.Script.Procedures
      If StrComp(p.ControlName, c.UserName, vbTextCompare) = 0 And c.Kind.HasEvent(p.EventName) Then Exit Function
    Next
    HasEventProcedure = False
  End Function

  Private Sub CheckScript()
    Dim p, seen, place
    With m_Project.Script
      If .HasBrokenMarker Then
        Note sevError, "SCRIPT", "the line " & ScriptMarker & " ends in a line feed alone; the form has no script"
      End If
      If .CodeLines = 0 Then Exit Sub
      If Not .IsBasic And Not .IsJava Then
        Note sevError, "SCRIPT", "unknown language """ & .Language & """; no procedure will be found"
      ElseIf .IsBasic And Not .HasOptionExplicit Then
        Note sevHint, "SCRIPT", "there is no Option Explicit; misspelled names go unnoticed"
      ElseIf .IsBasic And .OptionExplicitLine > 1 Then
        ' The form puts a line for each control in front of all but the first line.
        Note sevError, "SCRIPT line " & .OptionExplicitLine, "Option Explicit must be line 1; the script will not start"
      End If
      Set seen = New Tally
      For Each p In .Procedures
        place = "SCRIPT line " & p.FirstLine
        seen.Add p.Name
        If seen(p.Name) = 2 Then Note sevError, place, p.Name & " is defined more than once; the last one counts"
        If p.LineCount > LongProcedure Then Note sevHint, place, p.Name & " has " & Plural(p.LineCount, "line")
      Next
    End With
  End Sub

  Private Sub CheckEventProcedures()
    Dim p, place
    For Each p In m_Project.Script.Procedures
      place = "SCRIPT line " & p.FirstLine
      If p.ControlName <> "" Then
        If LCase(p.ControlName) = "form" Then
          CheckEvent p, place, kinds("Form")
        ElseIf m_Project.HasControl(p.ControlName) Then
          If m_Project(p.ControlName).IsKnown Then CheckEvent p, place, m_Project(p.ControlName).Kind
        ElseIf kinds.AnyHasEvent(p.EventName) Then
          Note sevWarning, place, p.Name & " looks like an event procedure, but there is no control " & p.ControlName
        End If
      End If
    Next
  End Sub

  Private Sub CheckEvent(p, place, kind)
    If kind.HasEvent(p.EventName) Then
      If p.Parameters <> "" Then Note sevError, place, p.Name & " has parameters; event procedures have none"
      If Not p.IsFound Then
        Note sevError, place, p.Name & " is never run: its line must begin with " & m_Project.Script.Wanted(p.Name)
      End If
    ElseIf m_Project.Script.Mentions(p.Name) = 0 Then
      Note sevWarning, place, p.Name & " is never run: a " & kind.TypeName & " has the events " & kind.EventNames
    End If
  End Sub

  Private Sub CheckUncalledProcedures()
    Dim p, own
    For Each p In m_Project.Script.Procedures
      ' In VBScript a function mentions itself to answer. How often, the tally can't tell; one assignment is usual.
      own = 0
      If p.Kind = "Function" And m_Project.Script.IsBasic Then own = 1
      If p.ControlName = "" And m_Project.Script.Mentions(p.Name) <= own Then
        Note sevWarning, "SCRIPT line " & p.FirstLine, p.Name & " is never called"
      End If
    Next
  End Sub
End Class

' ==== Classes: the report =================================================================================

' What the command line asks for.
Class CommandLine
  Public SummaryPath
  Private m_Projects

  Public Property Get Projects()
    Projects = m_Projects
  End Property

  Public Sub Read(arguments)
    Dim word, matches, examples
    m_Projects = Array()
    SummaryPath = fso.BuildPath(fso.GetSpecialFolder(TemporaryFolder), "project-report.txt")
    For Each word In arguments
      Set matches = Pattern("^--summary=(.+)$", False).Execute(word)
      If matches.Count > 0 Then
        SummaryPath = fso.GetAbsolutePathName(matches(0).SubMatches(0))
      ElseIf Left(word, 2) = "--" Then
        Err.Raise errUsage, "CommandLine", "There is no option " & word
      Else
        AppendTo m_Projects, word
      End If
    Next
    If UBound(m_Projects) >= 0 Then Exit Sub
    examples = fso.GetParentFolderName(fso.GetParentFolderName(WScript.ScriptFullName))
    m_Projects = Array(fso.BuildPath(fso.BuildPath(examples, "wells"), "well-inspection.cwf"))
  End Sub

End Class

' Puts a project into words: tables for the screen and for the summary.
Class Report
  Private m_Project

  Public Property Set Project(value)
    Set m_Project = value
  End Property

  ' Name and value pairs, in their order
  Public Property Get Overview()
    Dim lines
    With m_Project
      lines = Array( _
        Pair("Title", .Title), _
        Pair("Theme", .Theme & " (" & .FeatureType & ")"), _
        Pair("Opens", LCase(.StartMode)), _
        Pair("Size", InPixels(.Width) & " by " & InPixels(.Height) & " pixels"), _
        Pair("File", FormatNumber(.FileSize, 0) & " bytes"), _
        Pair("Changed", IsoDate(.Modified) & ", " & Plural(DateDiff("d", .Modified, Now), "day") & " ago"), _
        Pair("Controls", .ControlCount & ", bound to " & Plural(.Bindings.Count, "attribute")), _
        Pair("Script", ScriptSize(.Script)), _
        Pair("Findings", .Findings.Summary))
    End With
    Overview = Join(lines, vbCrLf)
  End Property

  Private Function InPixels(length)
    InPixels = Round(length)
    If m_Project.ScaleMode = scaleTwips Then InPixels = Round(length / TwipsPerPixel)
  End Function

  Private Function ScriptSize(script)
    ScriptSize = "none"
    If script.CodeLines = 0 Then Exit Function
    ScriptSize = script.Language & ", " & Plural(UBound(script.Procedures) + 1, "procedure") & ", " & _
      Plural(script.CodeLines, "line") & " of code"
  End Function

  Private Function Pair(name, value)
    Pair = "  " & Pad(name, 10, False) & value
  End Function

  Public Property Get Types()
    Dim table, counts, typeName
    Set table = New TextTable
    table.Columns = "Type|>Controls"
    Set counts = m_Project.TypeCounts
    For Each typeName In counts.Keys
      table.AddRow Array(typeName, counts(typeName))
    Next
    table.AddRow Array("all", m_Project.ControlCount)
    Types = table.Text
  End Property

  Public Property Get Details()
    Dim table, c
    Set table = New TextTable
    table.Columns = ">No.|Name|Type|Inside|Attribute|Needed|>Used"
    For Each c In m_Project.Controls
      table.AddRow Array(c.Number, c.Label, c.TypeName, ContainerName(c), c.Attribute, YesOrBlank(c.IsNeeded), _
        m_Project.Script.Mentions(c.UserName))
    Next
    Details = table.Text
  End Property

  Private Function ContainerName(c)
    Dim box
    If c.Container = "" Then Exit Function
    Set box = m_Project.Widget(c.Container)
    ContainerName = "(" & c.Container & ")"
    If Not box Is Nothing Then ContainerName = box.Label
  End Function

  Public Property Get Bindings()
    Dim table, map, attributes, attribute
    Set table = New TextTable
    table.Columns = "Attribute|Controls"
    Set map = m_Project.Bindings
    attributes = map.Keys
    SortBy attributes, GetRef("ComesBeforeAsText")
    For Each attribute In attributes
      table.AddRow Array(attribute, Names(map(attribute)))
    Next
    Bindings = table.Text
  End Property

  Public Property Get Procedures()
    Dim table, p
    Set table = New TextTable
    table.Columns = ">Line|>Lines|Procedure|Runs on"
    For Each p In m_Project.Script.Procedures
      table.AddRow Array(p.FirstLine, p.LineCount, p.Header, Occasion(p))
    Next
    Procedures = table.Text
  End Property

  Private Function Occasion(p)
    Occasion = ""
    If LCase(p.ControlName) = "form" Then
      If kinds("Form").HasEvent(p.EventName) Then Occasion = p.EventName & " of the form"
    ElseIf m_Project.HasControl(p.ControlName) Then
      Occasion = p.EventName & " of " & m_Project(p.ControlName)
    Else
      Occasion = "calls: " & m_Project.Script.Mentions(p.Name)
    End If
  End Function

  Public Property Get Findings()
    Dim severity, f, lines
    lines = Array()
    For Each severity In Array(sevError, sevWarning, sevHint)
      For Each f In m_Project.Findings.OfSeverity(severity)
        AppendTo lines, "  " & f.Text
      Next
    Next
    If UBound(lines) < 0 Then lines = Array("  none")
    Findings = Join(lines, vbCrLf)
  End Property

  ' All of it, for the summary.
  Public Property Get Everything()
    Everything = String(70, "=") & vbCrLf & m_Project.Path & vbCrLf & _
      Part("Overview", Overview) & Part("Types", Types) & Part("Controls", Details) & _
      Part("Bindings", Bindings) & Part("Procedures", Procedures) & Part("Findings", Findings)
  End Property

  Private Function Part(title, text)
    Part = vbCrLf & title & vbCrLf & String(Len(title), "-") & vbCrLf & text & vbCrLf
  End Function
End Class

' ==== Texts and numbers ===================================================================================

' A regular expression, ready for use. Case never matters unless the caller says so.
Function Pattern(text, isGlobal)
  Dim r
  Set r = New RegExp
  r.Pattern = text
  r.IgnoreCase = True
  r.Global = isGlobal
  Set Pattern = r
End Function

Function Pad(text, width, toTheRight)
  Dim blanks
  Pad = text
  If Len(text) >= width Then Exit Function
  blanks = Space(width - Len(text))
  If toTheRight Then Pad = blanks & text Else Pad = text & blanks
End Function

' "1 control", "2 controls"
Function Plural(n, noun)
  Plural = n & " " & noun
  If n <> 1 Then Plural = Plural & "s"
End Function

Function YesOrBlank(condition)
  If condition Then YesOrBlank = "yes" Else YesOrBlank = ""
End Function

Function SeverityName(severity)
  SeverityName = Array("hint", "warning", "error")(severity)
End Function

' -1 stands for features of any type.
Function FeatureTypeName(number)
  FeatureTypeName = "any feature"
  If number >= 0 And number <= 2 Then FeatureTypeName = Array("points", "arcs", "polygons")(number)
End Function

' The number that a text begins with, 0 where it begins with none: what the forms themselves make of it.
Function NumberOf(text)
  Dim matches
  NumberOf = 0
  Set matches = Pattern("^\s*[-+]?(\d+\.?\d*|\.\d+)", False).Execute(text)
  If matches.Count > 0 Then NumberOf = CDbl(matches(0).Value)
End Function

' Flags of a project are texts. One that is no truth value counts as false.
Function IsTrueText(text)
  IsTrueText = False
  On Error Resume Next
  IsTrueText = CBool(text)
  ' Err outlives the procedure; whoever looks at it next shall not find this.
  Err.Clear
End Function

' The names of controls, separated by commas
Function Names(list)
  Dim c, texts
  texts = Array()
  For Each c In list
    AppendTo texts, c.Label
  Next
  Names = Join(texts, ", ")
End Function

' ==== Dates ===============================================================================================

' The same everywhere, and it sorts.
Function IsoDate(moment)
  IsoDate = Year(moment) & "-" & Right("0" & Month(moment), 2) & "-" & Right("0" & Day(moment), 2)
End Function

' ==== Arrays ==============================================================================================

' Adds an element at the end of an array that the caller keeps.
Sub AppendTo(list, value)
  ReDim Preserve list(UBound(list) + 1)
  If IsObject(value) Then
    Set list(UBound(list)) = value
  Else
    list(UBound(list)) = value
  End If
End Sub

' Insertion sort: the lists of a form are short. `comesBefore` is a reference to the function that decides.
Sub SortBy(list, comesBefore)
  Dim i, j, moving
  For i = 1 To UBound(list)
    moving = list(i)
    For j = i - 1 To 0 Step -1
      If Not comesBefore(moving, list(j)) Then Exit For
      list(j + 1) = list(j)
    Next
    list(j + 1) = moving
  Next
End Sub

Function ComesBeforeAsText(a, b)
  ComesBeforeAsText = StrComp(a, b, vbTextCompare) < 0
End Function

Function ComesBeforeAsNumber(a, b)
  ComesBeforeAsNumber = a < b
End Function

' ==== Files ===============================================================================================

' A key's text, "" for one that is missing or blank: CIni answers Empty for both.
Function ValueOf(ini, section, key)
  ValueOf = ini.GetValue(section, key) & ""
End Function

Function ContentOf(path)
  Dim stream
  Set stream = fso.OpenTextFile(path, ForReading)
  ContentOf = stream.ReadAll
  stream.Close
End Function

' False where the file can't be written. A path may have characters that the code page lacks; then the summary is
' in Unicode, which lacks none.
Function WriteSummary(path, text)
  WriteSummary = TryToWrite(path, text, False)
  If Not WriteSummary Then WriteSummary = TryToWrite(path, text, True)
End Function

Function TryToWrite(path, text, isUnicode)
  Dim stream
  TryToWrite = False
  On Error Resume Next
  Set stream = fso.CreateTextFile(path, True, isUnicode)
  If Err.Number <> 0 Then Exit Function
  stream.WriteLine "Form projects, looked at on " & IsoDate(Now) & " at " & FormatDateTime(Now, vbShortTime)
  stream.WriteLine
  stream.Write text
  If Err.Number = 0 Then TryToWrite = True
  stream.Close
End Function

' ==== The program =========================================================================================

' Reads a project and looks through it. Nothing where it can't be read; the next one shall still have its turn.
Function Examine(path)
  Dim project, inspector
  Set Examine = Nothing
  On Error Resume Next
  Set project = New Project
  project.Load path
  If Err.Number = 0 Then
    Set inspector = New Inspector
    inspector.Inspect project
  End If
  If Err.Number <> 0 Then
    WScript.StdErr.WriteLine path & ": " & Err.Description
    Exit Function
  End If
  Set Examine = project
End Function

Sub Show(project, report)
  WScript.Echo fso.GetFileName(project.Path)
  EchoLines report.Overview
  WScript.Echo
  EchoLines report.Types
  WScript.Echo
  If project.Findings.Count > 0 Then EchoLines report.Findings & vbCrLf
End Sub

' The screen ends its lines in its own way, files in theirs.
Sub EchoLines(text)
  Dim line
  For Each line In Split(text, vbCrLf)
    WScript.Echo line
  Next
End Sub

Function Main()
  Dim path, project, report, summary, examined, failed, serious

  examined = 0
  failed = 0

  For Each path In options.Projects
    Set project = Examine(path)
    If project Is Nothing Then
      failed = failed + 1
    Else
      examined = examined + 1
      Set report = New Report
      Set report.Project = project
      Show project, report
      summary = summary & report.Everything & vbCrLf
      serious = serious + project.Findings.CountOf(sevError) + project.Findings.CountOf(sevWarning)
    End If
  Next

  WScript.Echo Plural(examined, "project") & " examined, " & failed & " not readable"
  If examined > 0 Then
    If WriteSummary(options.SummaryPath, summary) Then
      WScript.Echo "summary: " & options.SummaryPath
    Else
      WScript.StdErr.WriteLine "The summary cannot be written to " & options.SummaryPath
      failed = failed + 1
    End If
  End If

  Main = statusClean
  If serious > 0 Then Main = statusFindings
  If failed > 0 Then Main = statusFailed
End Function

' Numbers in projects have a point, and the report shall look the same in every country.
SetLocale 1033

Set fso = CreateObject("Scripting.FileSystemObject")
Set kinds = New KindCatalogue
Set options = New CommandLine

On Error Resume Next
options.Read WScript.Arguments
If Err.Number <> 0 Then
  WScript.StdErr.WriteLine Err.Description
  WScript.Quit statusFailed
End If
On Error GoTo 0

WScript.Quit Main()
