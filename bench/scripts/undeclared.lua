-- The peer of a script whose procedures leave their variables undeclared; here they are local.
local function balance(rows)
  local sum = 0
  for row = 1, rows do
    local value = row % 7
    if value > 3 then
      sum = sum + value * 2
    else
      sum = sum - 1
    end
  end
  return sum
end

local total = 0
for turn = 1, 1200 do total = (total + balance(2500 + turn)) % 1000003 end
print(total)
