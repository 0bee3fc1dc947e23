"""Lists of what a check lets pass: a line for each, after at least one line `# reason`. A blank line ends those of a reason."""

import pathlib
import sys


def read(path):
    found, has_reason = [], False
    for line in pathlib.Path(path).read_text().splitlines():
        if line.startswith("#"):
            has_reason = True
        elif not line:
            has_reason = False
        elif has_reason:
            found.append(line)
        else:
            sys.exit(f"{path}: no reason for: {line}")
    return found
