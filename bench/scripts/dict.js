// A dictionary of 200,000 texts filled, then asked for each.
var entries = new Map();
for (var i = 1; i <= 200000; i++) entries.set("k" + i, i);
var total = 0;
for (var i = 1; i <= 200000; i++) {
  if (entries.has("k" + i)) total = (total + entries.get("k" + i)) % 1000003;
}
console.log(entries.size + " " + total);
