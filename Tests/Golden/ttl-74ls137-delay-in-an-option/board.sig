# What stands at 0 has scheduled u for 38 before the option holds: it then finds nothing but undefined inputs,
# and an undefined enable shows the line of the address, here 0.
u(delay=80)
time _G1 => u.Y      other.Y
0    H      UUUUUUUU UUUUUUUU
37   H      UUUUUUUU UUUUUUUU
38   H      HHHHHHHL HHLHHHHH
80   H      HHHHHHHL HHHHHHHH
81   H      HHHHHHHH HHHHHHHH
100  L      HHHHHHHH HHHHHHHH
138  L      HHHHHHHH HHHHHHHH
139  L      HHHHHHHH HHLHHHHH
180  L      HHHHHHHH HHLHHHHH
181  L      HHLHHHHH HHLHHHHH
200  H      HHLHHHHH HHLHHHHH
238  H      HHLHHHHH HHLHHHHH
239  H      HHLHHHHH HHHHHHHH
280  H      HHLHHHHH HHHHHHHH
281  H      HHHHHHHH HHHHHHHH
300  L      HHHHHHHH HHHHHHHH
338  L      HHHHHHHH HHHHHHHH
339  L      HHHHHHHH HHLHHHHH
380  L      HHHHHHHH HHLHHHHH
381  L      HHLHHHHH HHLHHHHH
