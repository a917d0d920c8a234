// The peer of arguments by reference: the values come back.
function swap(a, b) {
  return [b, a];
}

function rotate(a, b, c) {
  [a, b] = swap(a, b);
  [b, c] = swap(b, c);
  return [a, b, c];
}

function shuffle(items, turns, first, second) {
  for (var i = 1; i <= turns; i++) {
    var one = i % 16, other = (i * 7) % 16;
    [items[one], items[other]] = swap(items[one], items[other]);
    var between = i % 13;
    [first, items[between], second] = rotate(first, items[between], second);
  }
  return [first, second];
}

var items = [];
for (var i = 0; i <= 15; i++) items[i] = i;
var [first, second] = shuffle(items, 400000, 100, 200);
var hash = first * 31 + second;
for (var i = 0; i <= 15; i++) hash = (hash * 31 + items[i]) % 1000003;
console.log(hash);
