WScript.Echo("a".anchor("b"), "a".bold(), escape("\u00e4 "), unescape("%u20AC"));
// expect: <a name="b">a</a> <b>a</b> %E4%20 €
