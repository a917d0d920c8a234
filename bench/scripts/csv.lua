-- A table as text, as scripts get it from files: 50,000 lines made, taken apart and written again with other formats.
local COUNT = 50000
local lines, seed = {}, 7
for i = 0, COUNT - 1 do
  seed = (seed * 1103 + 12345) % 1000003
  lines[i + 1] = i .. ";parcel " .. (seed % 4001) .. ";" .. (seed % 10000) / 4
end
local text = table.concat(lines, "\r\n")

lines = {}
for line in text:gmatch("[^\r\n]+") do lines[#lines + 1] = line end
local total = 0
for i = 1, #lines do
  local fields = {}
  for field in lines[i]:gmatch("[^;]+") do fields[#fields + 1] = field end
  local amount = tonumber(fields[3])
  total = total + amount
  lines[i] = ("000000" .. fields[1]):sub(-6) .. "," .. fields[2]:upper() .. "," .. string.format("%.2f", amount * 2)
end
text = table.concat(lines, "\n")

local hash = 0
for i = 1, #text, 101 do hash = (hash * 31 + text:byte(i)) % 1000003 end
print(#text .. " " .. math.floor(total) .. " " .. hash)
