// Words of a text found by a regular expression and counted in a dictionary.
var COUNT = 60000;
var syllables = ["ka", "Lo", "mi", "ne", "ru", "Sa", "ti", "vo"];
var words = [], seed = 11;
for (var i = 0; i < COUNT; i++) {
  seed = (seed * 1103 + 12345) % 1000003;
  words[i] = syllables[seed % 8] + syllables[(seed >> 3) % 8] + syllables[(seed >> 6) % 8] + "," + (i % 100);
}
var text = words.join(" ");

var counts = new Map();
for (var found of text.matchAll(/[a-z]+/gi)) {
  var word = found[0].toLowerCase();
  if (counts.has(word)) {
    counts.set(word, counts.get(word) + 1);
  } else {
    counts.set(word, 1);
  }
}

var best = 0, squares = 0;
for (var word of counts.keys()) {
  if (counts.get(word) > best) best = counts.get(word);
  squares = (squares + counts.get(word) * counts.get(word)) % 1000003;
}
console.log(counts.size + " " + best + " " + squares + " " + text.replace(/[aeiou]/gi, "").length);
