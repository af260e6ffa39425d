"""The sheet: a transparent picture with cells of sprites; a screen is one opaque cell of 800 by 600."""

from shapes import DEFINITIONS, glowing, pressed


class Sheet:
    """A picture of `columns` cells a row, each `w` by `h`, in the order in which they are added."""

    def __init__(self, w, h, columns):
        self.w, self.h, self.columns = w, h, columns
        self.cells = []
        self.count = self.top = 0

    def add(self, name, piece):
        x, y = self.count % self.columns * self.w, self.top + self.count // self.columns * self.h
        self.cells.append((name, x, y, self.w, self.h, piece))
        self.count += 1

    def below(self, w, h, columns):
        """The cells added from here on have another size and begin below the last row."""
        self.top = self.size()[1]
        self.w, self.h, self.columns, self.count = w, h, columns, 0

    def size(self):
        return max(x + w for _, x, _, w, _, _ in self.cells), max(y + h for _, _, y, _, h, _ in self.cells)

    def rectangles(self):
        return [cell[:5] for cell in self.cells]

    def svg(self):
        width, height = self.size()
        out = [
            f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" viewBox="0 0 {width} {height}">',
            f"<defs>{DEFINITIONS}</defs>",
        ]
        for _, x, y, w, h, piece in self.cells:
            out.append(f'<svg x="{x}" y="{y}" width="{w}" height="{h}" overflow="hidden">{piece}</svg>')
        out.append("</svg>\n")
        return "\n".join(out)


def screen(piece):
    sheet = Sheet(800, 600, 1)
    sheet.add("room", piece)
    return sheet


def add_states(sheet, name, piece):
    """The three looks of a button: at rest, under the pointer, pressed."""
    sheet.add(name, piece)
    sheet.add(name + "-glow", glowing(piece))
    sheet.add(name + "-pressed", pressed(piece))
