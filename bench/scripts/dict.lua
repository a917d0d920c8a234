-- A dictionary of 200,000 texts filled, then asked for each.
local entries, count = {}, 0
for i = 1, 200000 do
  entries["k" .. i] = i
  count = count + 1
end
local total = 0
for i = 1, 200000 do
  if entries["k" .. i] ~= nil then total = (total + entries["k" .. i]) % 1000003 end
end
print(count .. " " .. total)
