-- A text that grows by one character, 200,000 times. Each step copies the whole text here.
local grown = ""
for i = 1, 200000 do grown = grown .. (i % 10) end
local hash = 0
for i = 1, #grown, 997 do hash = (hash * 31 + grown:byte(i)) % 1000003 end
print(#grown .. " " .. hash)
