// Loops and an array of Booleans: the primes up to a million, counted.
var limit = 1000000;
var prime = [];
for (var i = 0; i <= limit; i++) prime[i] = true;
for (var i = 2; i * i <= limit; i++) {
  if (prime[i]) {
    for (var j = i * i; j <= limit; j += i) prime[j] = false;
  }
}
var count = 0;
for (var i = 2; i <= limit; i++) if (prime[i]) count++;
console.log(count);
