// A text that grows by one character, 200,000 times.
var grown = "";
for (var i = 1; i <= 200000; i++) grown += (i % 10);
var hash = 0;
for (var i = 0; i < grown.length; i += 997) hash = (hash * 31 + grown.charCodeAt(i)) % 1000003;
console.log(grown.length + " " + hash);
