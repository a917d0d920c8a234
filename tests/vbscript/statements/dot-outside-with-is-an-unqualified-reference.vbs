x = .Name
' expect error: 505
' expect text: Invalid or unqualified reference
