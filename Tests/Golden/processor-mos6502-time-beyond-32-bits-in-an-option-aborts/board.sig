cpu(t_dhw=4294967296)
time cpu.PHI0 => cpu.PHI1
0    L        H
