-- A property of a class, read and written by its two methods.
local Counter = {}
Counter.__index = Counter

function Counter.new() return setmetatable({value = 0}, Counter) end
function Counter:get() return self.value end
function Counter:set(newValue) self.value = newValue end

local counted = Counter.new()
for i = 1, 500000 do counted:set((counted:get() + i) % 1000003) end
print(counted:get())
