import sys
sys.set_int_max_str_digits(0)
x = int(str(3**41900))
bits = [c == "1" for c in bin(x)[:1:-1]]
print(len(str(int("".join("1" if b else "0" for b in reversed(bits)), 2))))
