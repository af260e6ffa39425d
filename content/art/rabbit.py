"""The rabbit: sneezing with a red nose; each step of the cure lifts its ears a little more."""

from shapes import (
    CORAL, CREAM, GREEN, LAVENDER, ORANGE, OUTLINE, PINK, SKY, TEAL, WHITE, box, cheek, ellipse, eye, flat, limb,
    move, shade, shut_eye, solid, squeezed_eye, star, stroke, tear,
)

RABBIT = "#e9d6c3"
INNER = PINK


def ear(x, y, turn, bent=False):
    """An ear standing on (x, y); a bent one folds over at half its height."""
    if bent:
        piece = solid("M-17,0C-22,-40 -20,-62 -4,-70C20,-80 44,-64 50,-38C52,-24 40,-20 32,-28C24,-40 18,-38 17,0Z", RABBIT, 5,
                      inside=flat("M-6,0C-10,-30 -8,-48 2,-54C8,-44 8,-24 6,0Z", INNER))  # fmt: skip
    else:
        piece = solid("M-18,0C-26,-46 -20,-96 0,-100C20,-96 26,-46 18,0Z", RABBIT, 5, inside=flat("M-8,0C-14,-40 -10,-76 0,-80C10,-76 14,-40 8,0Z", INNER))
    return move(move(piece, turn=turn, size=0.86), x, y)


def rabbit_head(mood, look):
    """The head about (120, 118), its ears above. Looks: cold, drunk, fed, well."""
    ears = {"cold": ((-74, False), (74, False)), "drunk": ((-34, True), (46, False)), "fed": ((-12, False), (16, True)), "well": ((-10, False), (10, False))}
    (a, left_bent), (b, right_bent) = ears[look]
    if mood == "ow":
        a, b = a - 10, b + 10
    out = move(ear(0, 0, -a, left_bent), 94, 84, size=(-1, 1)) + ear(146, 84, b, right_bent)
    skull = "M120,66C164,66 190,92 190,122C190,150 160,164 120,164C80,164 50,150 50,122C50,92 76,66 120,66Z"
    warm = flat(ellipse(120, 78, 40, 15), "#f2b3a4") if look == "cold" else ""
    out += solid(skull, RABBIT, 7, inside=warm, glint=(86, 80, 12, 5))
    if mood in ("sad", "hope"):
        out += eye(88, 108, 12, 14) + eye(152, 108, 12, 14)
    elif mood in ("blink", "hopeblink"):
        out += shut_eye(88, 111, 12) + shut_eye(152, 111, 12)
    elif mood in ("ow", "sneeze"):
        out += squeezed_eye(88, 110, 11) + squeezed_eye(152, 110, 11, left=False)
    elif mood == "happy":
        out += eye(88, 106, 13, 15) + eye(152, 106, 13, 15)
    else:
        out += shut_eye(88, 112, 13, up=True) + shut_eye(152, 112, 13, up=True)
    if mood in ("sad", "blink", "ow"):
        out += stroke("M74,90Q84,82 96,86") + stroke("M166,90Q156,82 144,86")
    out += cheek(70, 134, 13, 8) + cheek(170, 134, 13, 8)
    out += solid("M120,130C140,124 154,134 150,146C144,158 128,156 120,150C112,156 96,158 90,146C86,134 100,124 120,130Z", CREAM, 3, 3.5)
    if mood in ("happy", "joy"):
        out += solid(box(110, 150, 10, 14, 3), WHITE, 0, 3) + solid(box(120, 150, 10, 14, 3), WHITE, 0, 3)
        out += stroke("M98,144Q108,156 120,148Q132,156 142,144", OUTLINE, 3.5)
    elif mood in ("hope", "hopeblink"):
        out += stroke("M104,146Q112,153 120,147Q128,153 136,146", OUTLINE, 3.5)
    elif mood in ("ow", "sneeze"):
        out += solid(ellipse(120, 152, 10, 7), "#a8443d", 0, 3)
    else:
        out += stroke("M106,154Q113,146 120,148Q127,146 134,154", OUTLINE, 3.5)
    nose = CORAL if look in ("cold", "drunk") else PINK
    out += solid(ellipse(120, 134, 14 if nose == CORAL else 11, 10 if nose == CORAL else 8), nose, 2, 3, glint=(115, 130, 4, 2.5))
    if mood in ("sad", "blink"):
        out += tear(64, 128, 6)
    if mood == "ow":
        out += tear(58, 132, 8) + tear(182, 132, 8)
    if mood == "sneeze":
        for x, y, r in ((40, 176, 6), (24, 158, 5), (30, 192, 4), (200, 176, 6), (216, 158, 5), (212, 192, 4)):
            out += solid(ellipse(x, y, r), SKY, 0, 2.5)
    return out


def rabbit(mood="sad", look="cold", breath=0, hop=0):
    """The rabbit, sitting, in a frame of 250 by 290, feet at y 284."""
    out = solid(ellipse(190, 254, 20, 18), WHITE, 4)
    out += solid(f"M120,{156 - breath}C166,{156 - breath} 190,212 186,254Q182,280 120,280Q58,280 54,254C50,212 74,{156 - breath} 120,{156 - breath}Z", RABBIT, 8,
                 inside=flat(ellipse(120, 230, 38, 46), CREAM))  # fmt: skip
    for x in (74, 166):
        out += solid(ellipse(x, 268, 34, 15), RABBIT, 4) + stroke(f"M{x - 8},270V279M{x + 6},270V279", OUTLINE, 3)
    for x, lean in ((98, 4), (142, -4)):
        out += limb(f"M{x},212L{x + lean},240", RABBIT, 20) + solid(ellipse(x + lean, 246, 16, 12), RABBIT, 4)
    if look != "well":
        out += solid("M72,170Q120,196 168,170L170,188Q120,216 70,188Z", LAVENDER, 4) + solid("M146,188L170,184L176,226L152,230Z", LAVENDER, 4)
        out += stroke("M156,212L174,209", TEAL, 4) + stroke("M154,200L172,197", TEAL, 4)
    else:
        out += solid("M104,236L136,236Q130,274 120,280Q110,274 104,236Z", ORANGE, 4) + stroke("M110,246H118M122,256H128", shade(ORANGE, 0.5), 3)
        out += stroke("M120,234V218M114,234L106,222M126,234L134,222", GREEN, 6)
        out += solid(ellipse(104, 246, 13, 10), RABBIT, 3) + solid(ellipse(138, 246, 13, 10), RABBIT, 3)
    out += move(rabbit_head(mood, look), 0, -breath + (4 if mood == "sneeze" else 0))
    if mood == "ow":
        out += star(26, 60, 14) + star(214, 58, 16)
    return move(out, 4, 3 - hop, size=0.92, about=(120, 284))


def rabbit_face(cx, cy, s=1.0):
    """The rabbit's pictogram."""
    out = ""
    for x, turn in ((-12, -10), (12, 10)):
        out += move(move(solid("M-8,0C-12,-20 -9,-34 0,-36C9,-34 12,-20 8,0Z", RABBIT, 3, inside=flat(ellipse(0, -14, 4, 14), INNER)), turn=turn), x, -8)
    out += solid(ellipse(0, 6, 26, 22), RABBIT, 4) + flat(ellipse(-10, 3, 4, 5.5), OUTLINE) + flat(ellipse(10, 3, 4, 5.5), OUTLINE)
    out += flat(ellipse(0, 11, 5, 3.5), CORAL) + stroke("M-7,18Q-3,21 0,17Q3,21 7,18", OUTLINE, 2.5)
    return move(out, cx, cy, size=s)
