-- The peer of arguments by reference: the values come back.
local function swap(a, b) return b, a end

local function rotate(a, b, c)
  a, b = swap(a, b)
  b, c = swap(b, c)
  return a, b, c
end

local function shuffle(items, turns, first, second)
  for i = 1, turns do
    local one, other = i % 16, i * 7 % 16
    items[one], items[other] = swap(items[one], items[other])
    local between = i % 13
    first, items[between], second = rotate(first, items[between], second)
  end
  return first, second
end

local items = {}
for i = 0, 15 do items[i] = i end
local first, second = shuffle(items, 400000, 100, 200)
local hash = first * 31 + second
for i = 0, 15 do hash = (hash * 31 + items[i]) % 1000003 end
print(hash)
