// A table as text, as scripts get it from files: 50,000 lines made, taken apart and written again with other formats.
var COUNT = 50000;
var lines = [], seed = 7;
for (var i = 0; i < COUNT; i++) {
  seed = (seed * 1103 + 12345) % 1000003;
  lines[i] = i + ";parcel " + (seed % 4001) + ";" + (seed % 10000) / 4;
}
var text = lines.join("\r\n");

lines = text.split("\r\n");
var total = 0;
for (var i = 0; i < lines.length; i++) {
  var fields = lines[i].split(";");
  var amount = Number(fields[2]);
  total += amount;
  lines[i] = ("000000" + fields[0]).slice(-6) + "," + fields[1].toUpperCase() + "," + (amount * 2).toFixed(2);
}
text = lines.join("\n");

var hash = 0;
for (var i = 0; i < text.length; i += 101) hash = (hash * 31 + text.charCodeAt(i)) % 1000003;
console.log(text.length + " " + Math.floor(total) + " " + hash);
