local a, s = {}, 0
for i = 0, 99999 do a[#a+1] = i end
for _, x in ipairs(a) do s = s + x end
print(s)
