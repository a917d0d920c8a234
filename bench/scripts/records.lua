-- Objects in an array, as a script keeps the rows of a table: 30,000 invoices put in order of amount and customer.
local Invoice = {}
Invoice.__index = Invoice
function Invoice.new() return setmetatable({}, Invoice) end

local function comesBefore(a, b)
  if a.amount ~= b.amount then return a.amount < b.amount end
  return a.customer < b.customer
end

local function sort(items, first, last)
  local i, j = first, last
  local pivot = items[(first + last) // 2]
  while i <= j do
    while comesBefore(items[i], pivot) do i = i + 1 end
    while comesBefore(pivot, items[j]) do j = j - 1 end
    if i <= j then
      local held = items[i]
      items[i] = items[j]
      items[j] = held
      i = i + 1
      j = j - 1
    end
  end
  if first < j then sort(items, first, j) end
  if i < last then sort(items, i, last) end
end

local COUNT = 30000
local invoices, seed = {}, 42
for i = 0, COUNT - 1 do
  seed = (seed * 1103 + 12345) % 1000003
  local made = Invoice.new()
  made.number = i
  made.customer = "customer " .. (seed % 977)
  made.amount = seed % 5000
  invoices[i] = made
end
sort(invoices, 0, COUNT - 1)
local hash = 0
for i = 0, COUNT - 1 do hash = (hash * 31 + invoices[i].number) % 1000003 end
print(invoices[0].amount .. " " .. invoices[COUNT - 1].amount .. " " .. hash)
