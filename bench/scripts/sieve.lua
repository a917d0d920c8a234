-- Loops and an array of Booleans: the primes up to a million, counted.
local limit = 1000000
local prime = {}
for i = 2, limit do prime[i] = true end
local i = 2
while i * i <= limit do
  if prime[i] then
    for j = i * i, limit, i do prime[j] = false end
  end
  i = i + 1
end
local count = 0
for i = 2, limit do
  if prime[i] then count = count + 1 end
end
print(count)
