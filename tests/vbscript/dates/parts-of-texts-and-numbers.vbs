WScript.Echo Year("Nov 21, 2026"), Day(46347.5), Hour(46347.5)
' expect: 2026 21 12
