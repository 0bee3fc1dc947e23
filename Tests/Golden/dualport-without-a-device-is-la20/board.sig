time A   _OE _CE => q        q20      q25
# Address, _OE and _CE: the first two are alike, LA25 comes later.
0    001 L   L      UUUUUUUU UUUUUUUU UUUUUUUU
19   001 L   L      UUUUUUUU UUUUUUUU UUUUUUUU
20   001 L   L      41       41       UUUUUUUU
25   001 L   L      41       41       41
100  002 L   L      41       41       41
103  002 L   L      UUUUUUUU UUUUUUUU UUUUUUUU
119  002 L   L      UUUUUUUU UUUUUUUU UUUUUUUU
120  002 L   L      42       42       UUUUUUUU
125  002 L   L      42       42       42
200  002 H   L      42       42       42
210  002 H   L      ZZZZZZZZ ZZZZZZZZ ZZZZZZZZ
300  002 L   L      UUUUUUUU UUUUUUUU UUUUUUUU
310  002 L   L      UUUUUUUU UUUUUUUU UUUUUUUU
311  002 L   L      42       42       UUUUUUUU
312  002 L   L      42       42       42
