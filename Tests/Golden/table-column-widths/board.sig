time a clock => q
5 5A 1 X
123456 L Z X
1234567 FF 0 X
