// A text of a million characters searched for a word, then looked at character by character.
var text = "the quick brown fox jumps over the lazy dog; ";
while (text.length < 1048576) text += text;
text = text.substring(0, 1048576);
var count = 0;
var found = text.indexOf("fox");
while (found >= 0) {
  count++;
  found = text.indexOf("fox", found + 1);
}
var letters = 0;
for (var i = 0; i < text.length; i++) {
  var letter = text.substring(i, i + 1);
  if (letter == "o") letters++;
}
console.log(count + " " + letters);
