WScript.Echo "6" * "7", "9" / "2", "9" - 4, "7" \ "2", "7" Mod "4", "2" ^ "3"
' expect: 42 4.5 5 3 3 8
WScript.Echo -"5", TypeName(-"5")
' expect: -5 Double
