-- Words of a text found by a pattern and counted in a table.
local COUNT = 60000
local syllables = {[0] = "ka", "Lo", "mi", "ne", "ru", "Sa", "ti", "vo"}
local words, seed = {}, 11
for i = 0, COUNT - 1 do
  seed = (seed * 1103 + 12345) % 1000003
  words[i + 1] = syllables[seed % 8] .. syllables[seed // 8 % 8] .. syllables[seed // 64 % 8] .. "," .. (i % 100)
end
local text = table.concat(words, " ")

local counts, distinct = {}, 0
for found in text:gmatch("%a+") do
  local word = found:lower()
  if counts[word] then
    counts[word] = counts[word] + 1
  else
    counts[word] = 1
    distinct = distinct + 1
  end
end

local best, squares = 0, 0
for word in pairs(counts) do
  if counts[word] > best then best = counts[word] end
  squares = (squares + counts[word] * counts[word]) % 1000003
end
print(distinct .. " " .. best .. " " .. squares .. " " .. #text:gsub("[aeiouAEIOU]", ""))
