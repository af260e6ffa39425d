"""The tools: on the shelf, on the bar, as pointers; the basket, and the book on its desk."""

from animals import bandage_strip
from items import antiseptic, bandaid, basket, book, drops, hand, soap
from shapes import (
    CORAL, WHITE, WOOD, YELLOW, box, flat, glowing, light, move, paw_print, poly, shade, solid, sparkle, stroke,
)
from sheet import Sheet, add_states


def shelf_item(name, tool):
    """A tool as it lies on the shelf."""
    if name == "bandaid":
        piece = solid(box(12, 34, 80, 68, 8), WHITE, 6) + solid(box(12, 34, 80, 16, 6), CORAL, 3) + bandaid(52, 76, 0.62)
        piece = solid(poly((20, 34), (34, 12), (70, 12), (84, 34)), CORAL, 4) + move(bandage_strip(0, 0, 46, 18), 52, 22, turn=-14) + piece
    else:
        size = {"fleacollar": 1.1, "water": 1.15, "grapes": 1.2}.get(name, 1.3)
        piece = tool(52, 100 - 34 * size, size)
    sheet = Sheet(104, 112, 3)
    sheet.add("rest", piece)
    sheet.add("glow", glowing(piece))
    sheet.add("taken", move(piece, 0, -4) + sparkle(18, 18, 13, YELLOW) + sparkle(88, 26, 10, WHITE) + sparkle(86, 90, 12, YELLOW))
    return sheet


def tool_basket():
    sheet = Sheet(120, 104, 3)
    piece = basket(60, 58, 1.1)
    sheet.add("basket", piece)
    sheet.add("basket-glow", glowing(piece))
    sheet.add("basket-full", move(bandaid(40, 36, 0.6) + antiseptic(72, 30, 0.6) + soap(58, 40, 0.5), 0, 0) + piece)
    return sheet


def tool_bar():
    sheet = Sheet(800, 110, 1)
    out = solid("M-10,6H810V120H-10Z", WOOD, 0)
    out += flat("M0,8H800V20H0Z", light(WOOD, 0.4)) + stroke("M0,22H800", shade(WOOD, 0.4), 3)
    out += flat("M0,98H800V110H0Z", shade(WOOD, 0.3)) + stroke("M0,96H800", shade(WOOD, 0.5), 3)
    for i in range(6):
        out += solid(box(60 + i * 85 - 2, 28, 76, 64, 16), shade(WOOD, 0.22), 0, 0) + flat(box(60 + i * 85 - 2, 31, 76, 61, 16), light(WOOD, 0.25))
    out += paw_print(724, 60, 22, shade(WOOD, 0.25)) + paw_print(772, 52, 14, shade(WOOD, 0.25))
    sheet.add("bar", out)
    return sheet


def bar_tool(tool, x, y, size):
    sheet = Sheet(72, 84, 3)
    add_states(sheet, "tool", tool(x, y, size))
    return sheet


def key_colour():
    """Nothing but the ground: the engine reads the colour that is seen through from this picture."""
    sheet = Sheet(8, 8, 1)
    sheet.add("ground", "")
    return sheet


def pointer(name, tool):
    sheet = Sheet(64, 64, 1)
    if name == "hand":
        piece = hand(24, 25, 1.0)
    elif name == "antiseptic":
        piece = move(antiseptic(34, 33, 0.78), size=(-1, 1), about=(34, 33)) + drops(6, 12, 0.62)
    else:
        piece = tool(32, 32, 0.78)
    sheet.add("pointer", piece)
    return sheet


def medicalbook():
    sheet = Sheet(96, 92, 3)
    lying = move(book(48, 46, 1.05), turn=-8, about=(48, 46))
    sheet.add("book", lying)
    sheet.add("book-glow", glowing(lying))
    sheet.add("book-sparkle", lying + sparkle(80, 14, 12, YELLOW) + sparkle(14, 74, 10, WHITE))
    return sheet
