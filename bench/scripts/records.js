// Objects in an array, as a script keeps the rows of a table: 30,000 invoices put in order of amount and customer.
class Invoice {
  constructor() {
    this.number = undefined;
    this.customer = undefined;
    this.amount = undefined;
  }
}

function comesBefore(a, b) {
  if (a.amount != b.amount) return a.amount < b.amount;
  return a.customer < b.customer;
}

function sort(items, first, last) {
  var i = first, j = last;
  var pivot = items[Math.floor((first + last) / 2)];
  while (i <= j) {
    while (comesBefore(items[i], pivot)) i++;
    while (comesBefore(pivot, items[j])) j--;
    if (i <= j) {
      var held = items[i];
      items[i] = items[j];
      items[j] = held;
      i++;
      j--;
    }
  }
  if (first < j) sort(items, first, j);
  if (i < last) sort(items, i, last);
}

var COUNT = 30000;
var invoices = [], seed = 42;
for (var i = 0; i < COUNT; i++) {
  seed = (seed * 1103 + 12345) % 1000003;
  var made = new Invoice();
  made.number = i;
  made.customer = "customer " + (seed % 977);
  made.amount = seed % 5000;
  invoices[i] = made;
}
sort(invoices, 0, COUNT - 1);
var hash = 0;
for (var i = 0; i < COUNT; i++) hash = (hash * 31 + invoices[i].number) % 1000003;
console.log(invoices[0].amount + " " + invoices[COUNT - 1].amount + " " + hash);
