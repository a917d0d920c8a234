-- A text of a million characters searched for a word, then looked at character by character.
local text = "the quick brown fox jumps over the lazy dog; "
while #text < 1048576 do text = text .. text end
text = text:sub(1, 1048576)
local count = 0
local found = text:find("fox", 1, true)
while found do
  count = count + 1
  found = text:find("fox", found + 1, true)
end
local letters = 0
for i = 1, #text do
  local letter = text:sub(i, i)
  if letter == "o" then letters = letters + 1 end
end
print(count .. " " .. letters)
