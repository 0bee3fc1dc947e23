a == H
