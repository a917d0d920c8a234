// The peer of a script whose procedures leave their variables undeclared; here they are local.
function balance(rows) {
  var sum = 0;
  for (var row = 1; row <= rows; row++) {
    var value = row % 7;
    if (value > 3) {
      sum += value * 2;
    } else {
      sum -= 1;
    }
  }
  return sum;
}

var total = 0;
for (var turn = 1; turn <= 1200; turn++) total = (total + balance(2500 + turn)) % 1000003;
console.log(total);
