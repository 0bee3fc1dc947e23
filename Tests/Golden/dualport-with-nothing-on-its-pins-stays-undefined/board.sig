time a => q loose.IOL loose.BUSYL loose.BUSYR
# Nothing ever looks at the pins.
0    L    U UUUUUUUU  U           U
3    L    H UUUUUUUU  U           U
100  H    H UUUUUUUU  U           U
103  H    L UUUUUUUU  U           U
1000 H    L UUUUUUUU  U           U
