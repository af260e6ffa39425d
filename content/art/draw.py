#!/usr/bin/env python3
"""Writes the pictures of the clinic as SVG.

  draw.py list             the names of all pictures, one a line
  draw.py cells            every cell as "PICTURE CELL x y width height", to set frame files by
  draw.py svg PICTURE OUT  one picture as SVG; the same text on every run
"""

import sys

from shapes import restart_names
from sheets import SHEETS


def main(arguments):
    if arguments == ["list"]:
        print("\n".join(SHEETS))
    elif arguments == ["cells"]:
        for name, make in SHEETS.items():
            for cell, x, y, w, h in make().rectangles():
                print(name, cell, x, y, w, h)
    elif len(arguments) == 3 and arguments[0] == "svg" and arguments[1] in SHEETS:
        restart_names()
        with open(arguments[2], "w", encoding="ascii", newline="\n") as out:
            out.write(SHEETS[arguments[1]]().svg())
    else:
        sys.stderr.write(__doc__)
        return 2
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
