"""The small things that move in the games.

A ball, a shot and a drifting thing are hit by their corners or by the pixel under the pointer, so what
has to be hit fills its cell.
"""

from shapes import CORAL, OUTLINE, PINK, SKY, TEAL, WHITE, YELLOW, ellipse, flat, move, n, shade, solid, stroke

VIOLET = "#b48ad6"


def germ(colour, mood=0):
    """A germ of 64 by 60, more cross than terrible."""
    out = ""
    for x, y in ((10, 14), (54, 14), (6, 36), (58, 36), (18, 54), (46, 54), (32, 6)):
        out += stroke(f"M32,32L{x},{y}", OUTLINE, 9) + stroke(f"M32,32L{x},{y}", colour, 3) + solid(ellipse(x, y, 5), colour, 0, 3)
    out += solid(ellipse(32, 32, 24, 22), colour, 6, glint=(24, 20, 6, 3))
    out += flat(ellipse(24, 30, 6, 7), WHITE) + flat(ellipse(40, 30, 6, 7), WHITE) + flat(ellipse(25, 32, 3), OUTLINE) + flat(ellipse(39, 32, 3), OUTLINE)
    out += stroke("M17,21L28,25M47,21L36,25", OUTLINE, 3)
    return out + stroke("M25,45Q32,39 39,45" if mood else "M24,42H40", OUTLINE, 3)


def drop(x, y):
    return move(solid("M11,2Q20,14 20,20A9,9 0 0 1 2,20Q2,14 11,2Z", SKY, 3, 3, glint=(7, 20, 2, 4)), x, y)


def play_bubble(cx, cy, r):
    """The bubble that is played: violet with a rainbow, so that it stands out from all foam."""
    rainbow = "".join(stroke(f"M{n(cx - r * 0.62)},{n(cy + r * (0.34 - k * 0.17))}Q{n(cx)},{n(cy + r * (1.02 - k * 0.17))} {n(cx + r * 0.62)},{n(cy + r * (0.34 - k * 0.17))}", colour, r * 0.17)
                      for k, colour in enumerate((CORAL, YELLOW, TEAL)))  # fmt: skip
    return solid(ellipse(cx, cy, r), VIOLET, 3, 3.5, inside=rainbow, glint=(cx - r * 0.32, cy - r * 0.42, r * 0.32, r * 0.22))


def bug(colour, hop=0):
    """A flea of 64 by 60: brown, with a cheeky face and six legs."""
    legs = "".join(f"M{x},40L{x + d},{54 + hop}" for x, d in ((20, -8), (30, -3), (40, 4))) + "M46,36L58,30M48,42L58,50M18,34L6,28"
    out = stroke(legs, OUTLINE, 4)
    out += solid(ellipse(30, 32, 22, 17), colour, 5, glint=(22, 22, 7, 3)) + stroke("M22,18V46M32,16V48", shade(colour, 0.4), 3)
    out += solid(ellipse(46, 26, 13, 12), colour, 3) + flat(ellipse(43, 24, 4, 5), WHITE) + flat(ellipse(51, 24, 4, 5), WHITE) + flat(ellipse(44, 25, 2), OUTLINE) + flat(ellipse(52, 25, 2), OUTLINE)
    return out + stroke("M43,32Q47,35 51,31M40,15L36,6M52,15L56,6", OUTLINE, 2.5)


def butterfly(fold=1.0):
    wings = ""
    for side in (-1, 1):
        wings += solid(ellipse(32 + side * 15 * fold, 20, 15 * fold, 15), PINK, 3) + solid(ellipse(32 + side * 12 * fold, 42, 11 * fold, 12), YELLOW, 3)
        wings += flat(ellipse(32 + side * 15 * fold, 19, 6 * fold, 6), WHITE) + flat(ellipse(32 + side * 12 * fold, 42, 4 * fold, 4), CORAL)
    return wings + solid(ellipse(32, 32, 5, 20), CORAL, 2, 3) + solid(ellipse(32, 12, 7), CORAL, 0, 3) + stroke("M29,7L22,1M35,7L42,1M30,13Q32,15 34,13", OUTLINE, 2.5)


def foe_drop():
    """What the germs throw: a dark burr, so that nobody takes it for water."""
    out = stroke("M11,15L2,5M11,15V2M11,15L20,5M11,15L20,25M11,15V28M11,15L2,25", OUTLINE, 5)
    out += solid(ellipse(11, 15, 9, 9), "#7b4fa8", 0, 3)
    return out + flat(ellipse(8, 14, 2.4, 3), WHITE) + flat(ellipse(14, 14, 2.4, 3), WHITE) + stroke("M7,20Q11,16 15,20", WHITE, 2)
