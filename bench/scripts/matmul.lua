-- Arrays of two dimensions: the product of two matrices of 300 by 300.
local size = 300
local a, b, c = {}, {}, {}
for i = 0, size - 1 do
  a[i], b[i], c[i] = {}, {}, {}
  for j = 0, size - 1 do
    a[i][j] = (i * 3 + j) % 17
    b[i][j] = (i + j * 5) % 13
  end
end
for i = 0, size - 1 do
  for j = 0, size - 1 do
    local sum = 0
    for k = 0, size - 1 do sum = sum + a[i][k] * b[k][j] end
    c[i][j] = sum
  end
end
local total = 0
for i = 0, size - 1 do
  for j = 0, size - 1 do total = (total + c[i][j]) % 1000003 end
end
print(total)
