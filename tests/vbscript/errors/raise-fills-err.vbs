On Error Resume Next
Err.Raise 1000, "Tests", "Made up", "help.hlp", 77
WScript.Echo Err.Number, Err.Source, Err.Description, Err.HelpFile, Err.HelpContext
' expect: 1000 Tests Made up help.hlp 77
