time cpu.PHI0 => cpu.PHI1
0    L        H
