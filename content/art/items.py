"""Small things: tools, pictograms, buttons, bubbles, letters."""

from animals import bandage_strip
from shapes import (
    CORAL, CREAM, DARKWOOD, FUR, GREEN, MINT, OUTLINE, PINK, SKIN, SKY, TEAL, WHITE, WOOD, YELLOW, box,
    cross_path, ellipse, flat, heart_path, light, move, n, paw_print, poly, shade, solid, stroke,
)


# --- tools, each about the point (cx, cy), some 60 wide -------------------------------------------


def bandaid(cx, cy, s=1.0):
    """Two sticking plasters crossed: the tool that covers a clean wound."""
    piece = move(bandage_strip(0, 0, 62, 23), turn=45) + move(bandage_strip(0, 0, 62, 23), turn=-45)
    return move(piece, cx, cy, size=s)


def antiseptic(cx, cy, s=1.0):
    """A spray bottle: the tool that washes a wound."""
    out = solid(box(-11, -34, 18, 12, 3), CORAL, 2) + solid("M-15,-34H12Q20,-34 20,-28V-24H8V-26H-15Z", CORAL, 2)
    out += solid("M-9,-23H5Q6,-14 18,-10Q22,-8 22,-2V28Q22,34 16,34H-18Q-24,34 -24,28V-2Q-24,-8 -20,-10Q-9,-14 -9,-23Z", SKY, 5,
                 glint=(-15, 8, 3, 14))  # fmt: skip
    out += solid(box(-16, 0, 31, 25, 6), WHITE, 0, 3) + flat(cross_path(0, 12.5, 9), CORAL)
    return move(out, cx, cy, size=s)


def drops(cx, cy, s=1.0):
    out = ""
    for x, y, r in ((0, 0, 5), (12, -9, 5), (14, 6, 5)):
        out += solid(ellipse(x, y, r), SKY, 0, 2.5)
    return move(out, cx, cy, size=s)


def fleacollar(cx, cy, s=1.0):
    """The flea collar, lying as a ring with its bell."""
    ring = "M-30,0A30,16 0 1 1 30,0A30,16 0 1 1 -30,0Z"
    out = stroke(ring, OUTLINE, 17) + stroke(ring, TEAL, 9) + stroke("M-28,5A30,16 0 0 0 20,12", light(TEAL), 3)
    return move(out + solid(ellipse(0, 22, 10), YELLOW, 3) + stroke("M-5,24H5", OUTLINE, 2.5), cx, cy, size=s)


def soap(cx, cy, s=1.0):
    """A bar of soap in its foam: the tool that washes fur."""
    out = solid(box(-30, -8, 60, 34, 15), PINK, 5, glint=(-14, -2, 9, 3)) + stroke(box(-17, 2, 34, 15, 7), shade(PINK, 0.3), 3)
    for x, y, r in ((-22, -12, 10), (-4, -18, 13), (16, -13, 11), (26, -26, 6), (-14, -32, 5)):
        out += solid(ellipse(x, y, r), WHITE, 2, 3, glint=(x - r * 0.3, y - r * 0.35, r * 0.3, r * 0.2))
    return move(out, cx, cy, size=s)


def fleapowder(cx, cy, s=1.0):
    """A tin with holes in its lid: the tool that sends fleas away."""
    out = solid("M-21,-12H21V30Q21,34 17,34H-17Q-21,34 -21,30Z", GREEN, 5) + solid("M-24,-12V-22Q-24,-34 -8,-34H8Q24,-34 24,-22V-12Z", YELLOW, 4)
    for x, y in ((-11, -25), (0, -28), (11, -25), (-5, -19), (6, -19)):
        out += flat(ellipse(x, y, 2.2), OUTLINE)
    out += solid(ellipse(0, 11, 15), CREAM, 0, 3) + flat(ellipse(0, 12, 7, 5), "#7a4a3a")
    out += stroke("M-5,6L-8,3M0,6V2M5,6L8,3M-5,17L-8,20M5,17L8,20", OUTLINE, 2) + stroke("M-11,21L11,1", CORAL, 4)
    return move(out, cx, cy, size=s)


def water(cx, cy, s=1.0):
    """A glass of water."""
    out = solid("M-24,-30H24L18,30Q17,34 13,34H-13Q-17,34 -18,30Z", WHITE, 4, inside=flat("M-23,-14Q-10,-20 0,-14T23,-14L18,36H-18Z", SKY) + flat(box(-13, -6, 6, 28, 3), WHITE))
    return move(out + stroke("M6,-20L22,-44", OUTLINE, 9) + stroke("M6,-20L22,-44", CORAL, 4), cx, cy + 4 * s, size=s)


def grapes(cx, cy, s=1.0):
    """A bunch of grapes."""
    out = stroke("M0,-18Q2,-28 10,-34", OUTLINE, 9) + stroke("M0,-18Q2,-28 10,-34", DARKWOOD, 3)
    out += solid("M2,-22C-14,-40 -30,-34 -32,-22C-22,-14 -8,-14 2,-22Z", GREEN, 3)
    for x, y in ((-20, -9), (0, -12), (20, -9), (-11, 5), (10, 5), (0, 20)):
        out += solid(ellipse(x, y, 12), "#9a6cc4", 3, 3, glint=(x - 4, y - 4, 3, 2.5))
    return move(out, cx, cy + 2 * s, size=s)


def antibiotic(cx, cy, s=1.0):
    """A brown bottle and its spoon: the tool that chases germs."""
    out = solid("M-26,-8Q-28,-14 -22,-16H-20V-24H2V-16H4Q10,-14 8,-8V28Q8,34 2,34H-20Q-26,34 -26,28Z", DARKWOOD, 4, glint=(-19, 4, 3, 12))
    out += solid(box(-23, -34, 28, 12, 4), WHITE, 2, 3) + solid(box(-21, 2, 24, 20, 4), CREAM, 0, 3) + flat(cross_path(-9, 12, 7), CORAL)
    out += stroke("M22,32V-6", OUTLINE, 10) + stroke("M22,32V-6", YELLOW, 4) + solid(ellipse(22, -16, 10, 14), YELLOW, 3, 3.5) + flat(ellipse(22, -15, 5, 8), CORAL)
    return move(out, cx, cy, size=s)


def calamine(cx, cy, s=1.0):
    """A round bottle of pink lotion with a wad of cotton."""
    out = solid("M-8,-22H8V-10Q26,-4 26,14Q26,34 8,34H-8Q-26,34 -26,14Q-26,-4 -8,-10Z", PINK, 5, glint=(-16, 6, 4, 9)) + solid(box(-12, -34, 24, 15, 4), TEAL, 3)
    return move(out + solid(ellipse(0, 14, 12), CREAM, 0, 3) + flat(heart_path(0, 14, 6), CORAL), cx, cy, size=s)


def basket(cx, cy, s=1.0):
    """A basket that takes all tools back."""
    out = stroke("M-30,-4Q0,-54 30,-4", OUTLINE, 13) + stroke("M-30,-4Q0,-54 30,-4", DARKWOOD, 6)
    weave = "".join(stroke(f"M{x},-4L{x * 0.8},40", shade(WOOD, 0.4), 3) for x in range(-32, 36, 11)) + stroke("M-40,10H40M-40,22H40", shade(WOOD, 0.4), 3)
    out += solid("M-40,-4H40L31,34Q30,38 26,38H-26Q-30,38 -31,34Z", WOOD, 5, inside=weave) + solid(box(-44, -11, 88, 14, 6), WOOD, 3)
    return move(out, cx, cy, size=s)


def book(cx, cy, s=1.0):
    """The medical book, closed."""
    out = solid(box(-28, -32, 56, 66, 6), shade(CORAL, 0.35), 3)
    out += solid(box(-22, -28, 50, 58, 3), CREAM, 4, 3)
    out += stroke("M-18,24H24M-18,28H24", shade(CREAM, 0.3), 2)
    out += solid("M-28,-32H24Q28,-32 28,-28V18Q28,22 24,22H-28Z", CORAL, 5)
    out += stroke("M-18,-30V20", shade(CORAL, 0.4), 4)
    out += solid(ellipse(5, -5, 16), CREAM, 0, 3) + paw_print(5, -6, 11, TEAL)
    return move(out, cx, cy, size=s)


def hand(cx, cy, s=1.0):
    """A plump hand pointing up; the fingertip is at (-8, -16) for s 1 within 48 by 48."""
    glove = "M-13,-13Q-13,-20 -8,-20Q-2,-20 -2,-13V-3Q0,-7 4,-6Q8,-5 8,-1Q11,-4 14,-2Q17,0 16,4Q20,4 20,9V12Q20,22 8,22H-2Q-10,22 -14,14L-20,6Q-23,1 -19,-2Q-16,-4 -13,0Z"
    out = solid(glove, SKIN, 3, 3.5) + stroke("M-2,-3V4M8,-1V5M16,4V8", OUTLINE, 2.5)
    return move(out, cx, cy, size=s)


def cotton(cx, cy, s=1.0):
    out = solid(box(-24, -26, 48, 56, 10), SKY, 4) + solid(ellipse(-8, 6, 11), WHITE, 2, 3)
    out += solid(ellipse(9, 12, 11), WHITE, 2, 3) + solid(ellipse(2, -6, 11), WHITE, 2, 3) + solid(box(-28, -36, 56, 14, 6), CORAL, 3)
    return move(out, cx, cy, size=s)


def towels(cx, cy, s=1.0):
    out = ""
    for i, colour in enumerate((MINT, PINK, YELLOW)):
        out += solid(box(-36 + i * 2, 16 - i * 19, 72 - i * 4, 20, 9), colour, 4) + stroke(f"M-26,{26 - i * 19}H10", light(colour, 0.7), 3)
    return move(out, cx, cy, size=s)


# Every tool that can lie on the bar, in the order of its cells.
TOOLS = (
    ("hand", hand, 38, 42, 1.35), ("medicalbook", book, 36, 42, 0.92), ("bandaid", bandaid, 36, 42, 0.95), ("antiseptic", antiseptic, 37, 42, 0.92),
    ("soap", soap, 36, 46, 0.98), ("fleapowder", fleapowder, 36, 42, 0.95), ("fleacollar", fleacollar, 36, 38, 0.95), ("water", water, 34, 42, 0.9),
    ("grapes", grapes, 36, 42, 0.98), ("antibiotic", antibiotic, 38, 42, 0.95), ("calamine", calamine, 36, 42, 0.98),
)  # fmt: skip


# --- pictograms -----------------------------------------------------------------------------------


def house(cx, cy, s=1.0):
    out = solid(box(-20, -4, 40, 28, 3), CREAM, 4) + solid(poly((0, -28), (30, 0), (-30, 0)), CORAL, 4)
    out += solid(box(-7, 6, 14, 18, 3), DARKWOOD, 2, 3)
    return move(out, cx, cy, size=s)


def dog_face(cx, cy, s=1.0):
    out = solid(ellipse(0, 0, 27, 25), FUR, 4) + solid("M-20,-18C-36,-22 -40,4 -32,14C-24,16 -20,4 -18,-6Z", "#a9683c", 3)
    out += solid("M20,-18C36,-22 40,4 32,14C24,16 20,4 18,-6Z", "#a9683c", 3)
    out += solid(ellipse(0, 10, 15, 11), CREAM, 2, 3) + flat(ellipse(-10, -5, 4, 5.5), OUTLINE) + flat(ellipse(10, -5, 4, 5.5), OUTLINE)
    out += flat(ellipse(0, 6, 6, 4.5), OUTLINE) + stroke("M-6,13Q0,18 6,13", OUTLINE, 2.5)
    return move(out, cx, cy, size=s)


def tick(cx, cy, s=1.0):
    return move(stroke("M-16,2L-4,14L18,-14", OUTLINE, 17) + stroke("M-16,2L-4,14L18,-14", WHITE, 9), cx, cy, size=s)


def no_cross(cx, cy, s=1.0):
    d = "M-13,-13L13,13M13,-13L-13,13"
    return move(stroke(d, OUTLINE, 17) + stroke(d, WHITE, 9), cx, cy, size=s)


def triangle(cx, cy, s=1.0):
    return move(solid("M-14,-22Q-14,-28 -8,-26L24,-5Q30,0 24,5L-8,26Q-14,28 -14,22Z", WHITE, 4), cx, cy, size=s)


def arrow(cx, cy, s=1.0, turn=0, fill=WHITE):
    """A plump arrow to the right, turned by `turn`."""
    return move(move(solid("M-24,-9H0V-20Q0,-25 5,-22L28,-4Q32,0 28,4L5,22Q0,25 0,20V9H-24Z", fill, 3), turn=turn), cx, cy, size=s)


def again(cx, cy, s=1.0, fill=WHITE):
    """A round arrow: once more."""
    d = "M16,-12A20,20 0 1 0 20,6"
    out = stroke(d, OUTLINE, 16) + solid(poly((4, -14), (28, -18), (24, 6)), fill, 0) + stroke(d, fill, 8)
    return move(out, cx, cy, size=s)


def moon(cx, cy, s=1.0):
    return move(solid("M8,-24A25,25 0 1 0 22,14A20,20 0 1 1 8,-24Z", YELLOW, 4), cx, cy, size=s)


def question(cx, cy, s=1.0, fill=CORAL):
    d = "M-14,-14C-14,-34 16,-34 16,-14C16,0 0,-2 0,14"
    out = stroke(d, OUTLINE, 18) + stroke(d, fill, 10) + solid(ellipse(0, 32, 8), fill, 0)
    return move(out, cx, cy, size=s)


def cog_button(cx, cy, r, fill, sign):
    """A round button with a rim, a light above and a sign in the middle."""
    out = solid(ellipse(cx, cy, r), shade(fill, 0.35), 4)
    out += solid(ellipse(cx, cy - 3, r - 7), fill, 6, 0)
    out += flat(ellipse(cx - r * 0.28, cy - r * 0.52, r * 0.34, r * 0.13), light(fill, 0.7))
    return out + sign


# --- speech ---------------------------------------------------------------------------------------


def bubble(content):
    """A speech bubble of 232 by 176 with its tail at the lower right; content about (108, 76)."""
    d = "M34,8H182Q210,8 210,36V112Q210,138 190,140Q200,156 222,166Q186,166 164,140H34Q8,140 8,112V36Q8,8 34,8Z"
    return solid(d, WHITE, 6) + content


def small_arrow(cx, cy):
    return arrow(cx, cy, 0.62, fill=YELLOW)


# --- letters --------------------------------------------------------------------------------------

# Each letter as strokes in a box of 60 by 80, and its width.
LETTERS = {
    "A": ("M4,80L28,4L52,80M14,54H42", 58),
    "C": ("M52,18C36,-4 4,2 4,40C4,78 36,84 52,62", 58),
    "I": ("M8,2V80", 16),
    "L": ("M6,2V78H42", 48),
    "N": ("M6,80V4L48,78V2", 54),
    "P": ("M6,80V4H26C56,4 56,46 26,46H8", 50),
    "W": ("M2,4L18,78L36,20L54,78L70,4", 74),
    " ": ("", 26),
}


def lettering(text, x, y, size, colours):
    """Bubble letters from (x, y), `size` times 80 high, dancing a little."""
    under = over = ""
    left = 0
    for i, char in enumerate(text):
        d, width = LETTERS[char]
        tilt, hop = ((-4, 0), (3, -5), (-2, 2), (4, -3))[i % 4]
        if d:
            place = f'<g transform="translate({n(left)},{hop}) rotate({tilt} 28 40)">'
            colour = colours[i % len(colours)]
            under += place + stroke(d, OUTLINE, 32) + "</g>"
            over += place + stroke(d, shade(colour, 0.25), 23) + f'<g transform="translate(-1.5,-2)">{stroke(d, colour, 18)}</g>'
            over += f'<g transform="translate(-4,-5)">{stroke(d, light(colour, 0.6), 4, 0.8)}</g></g>'
        left += width + 24
    return f'<g transform="translate({n(x)},{n(y)}) scale({n(size)})">{under}{over}</g>'


def lettering_width(text, size):
    return (sum(LETTERS[c][1] + 24 for c in text) - 24) * size
