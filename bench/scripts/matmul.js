// Arrays of two dimensions: the product of two matrices of 300 by 300.
var size = 300;
var a = [], b = [], c = [];
for (var i = 0; i < size; i++) {
  a[i] = [];
  b[i] = [];
  c[i] = [];
  for (var j = 0; j < size; j++) {
    a[i][j] = (i * 3 + j) % 17;
    b[i][j] = (i + j * 5) % 13;
  }
}
for (var i = 0; i < size; i++) {
  for (var j = 0; j < size; j++) {
    var sum = 0;
    for (var k = 0; k < size; k++) sum += a[i][k] * b[k][j];
    c[i][j] = sum;
  }
}
var total = 0;
for (var i = 0; i < size; i++) {
  for (var j = 0; j < size; j++) total = (total + c[i][j]) % 1000003;
}
console.log(total);
