local parts = {}
for i = 1, 100000 do parts[i] = "[ab]" end
print(#table.concat(parts))
