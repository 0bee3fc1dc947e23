time AL  AR  RWL _CE1 => ram[0].BUSYR ram[1].BUSYR
# The first RAM of the array, the second one, then both: each tells its name.
0    001 002 L   H       U            U
20   001 002 L   H       H            H
100  001 001 L   H       H            H
120  001 001 L   H       L            H
200  001 001 H   H       L            H
230  001 001 H   H       H            H
300  001 002 L   H       H            H
400  001 002 L   L       H            H
500  001 001 L   L       H            H
520  001 001 L   L       L            L
600  001 001 H   L       L            L
630  001 001 H   L       H            H
