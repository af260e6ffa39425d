"""The turtle: muddy all over, then thirsty, then with a scratch that the mud had hidden; at last it dances."""

import math

from animals import bandage_strip
from shapes import (
    CORAL, GREEN, OUTLINE, PINK, TEAL, YELLOW, cheek, ellipse, eye, flat, light, limb, move, shade, shut_eye,
    solid, sparkle, squeezed_eye, star, stroke, tear,
)

TURTLE = GREEN
SHELL = TEAL
BELLY = "#ffe7a8"
MUD = "#8f5c39"


def mud_spots(places):
    return "".join(flat(ellipse(x, y, r, r * 0.8), MUD) for x, y, r in places)


def turtle_head(mood, look):
    """The head about (120, 98). Moods as the dog's, and parched: the tongue hangs out."""
    skull = "M120,32C170,32 200,62 198,102C196,144 160,160 120,160C80,160 44,144 42,102C40,62 70,32 120,32Z"
    inside = flat(ellipse(120, 150, 66, 38), light(TURTLE, 0.45))
    if look == "muddy":
        inside += mud_spots(((78, 54, 17), (166, 62, 14), (190, 128, 13), (54, 130, 12), (124, 44, 9), (96, 38, 10)))
    else:
        inside += "".join(flat(ellipse(x, y, rx, ry), shade(TURTLE, 0.3)) for x, y, rx, ry in ((120, 42, 13, 8), (98, 52, 7, 5), (144, 52, 8, 5)))
    out = solid(skull, TURTLE, 7, inside=inside, glint=(78, 58, 13, 7) if look != "muddy" else None)
    if mood in ("sad", "hope", "parched"):
        out += eye(82, 96, 14, 17) + eye(158, 96, 14, 17)
    elif mood in ("blink", "hopeblink"):
        out += shut_eye(82, 99, 14) + shut_eye(158, 99, 14)
    elif mood == "ow":
        out += squeezed_eye(82, 98, 13) + squeezed_eye(158, 98, 13, left=False)
    elif mood == "happy":
        out += eye(82, 94, 15, 18) + eye(158, 94, 15, 18)
    else:
        out += shut_eye(82, 100, 15, up=True) + shut_eye(158, 100, 15, up=True)
    if mood in ("sad", "blink", "ow", "parched"):
        out += stroke("M64,74Q76,64 90,68") + stroke("M176,74Q164,64 150,68")
    elif mood in ("happy", "joy"):
        out += stroke("M68,68Q80,60 92,66") + stroke("M172,68Q160,60 148,66")
    out += cheek(64, 124, 12, 8) + cheek(176, 124, 12, 8)
    out += flat(ellipse(112, 112, 3, 4), OUTLINE) + flat(ellipse(128, 112, 3, 4), OUTLINE)
    if mood in ("sad", "blink"):
        out += stroke("M96,142Q120,120 144,142")
    elif mood == "ow":
        out += solid("M98,144Q102,126 120,126Q138,126 142,144Q130,138 120,140Q110,138 98,144Z", "#a8443d", 0)
    elif mood == "parched":
        out += stroke("M92,134Q120,126 148,134") + solid("M108,131Q106,156 120,157Q134,156 132,131Z", PINK, 2, 3) + stroke("M120,136V147", shade(PINK, 0.4), 3)
    elif mood in ("hope", "hopeblink"):
        out += stroke("M94,130Q120,148 146,130")
    else:
        out += solid("M88,126Q120,138 152,126Q148,153 120,153Q92,153 88,126Z", "#a8443d", 0, inside=flat(ellipse(120, 152, 17, 10), PINK))
    if mood in ("sad", "blink"):
        out += tear(58, 116, 6)
    if mood == "ow":
        out += tear(50, 118, 8) + tear(190, 118, 8)
    if look == "well":
        out += flower_in_hair(64, 46)
    return out


def flower_in_hair(cx, cy):
    petals = "".join(solid(ellipse(cx + 11 * math.cos(a), cy + 11 * math.sin(a), 9), PINK, 2, 3) for a in (math.radians(i * 72 - 90) for i in range(5)))
    return petals + solid(ellipse(cx, cy, 7), YELLOW, 0, 3)


def scratch(cx, cy):
    """A scratch across the front shell."""
    return stroke(f"M{cx - 20},{cy + 10}L{cx - 8},{cy - 2}L{cx + 2},{cy + 5}L{cx + 20},{cy - 11}", CORAL, 5)


def turtle(mood="sad", look="muddy", pose=0, breath=0, hop=0):
    """The turtle, sitting upright, in a frame of 250 by 290, feet at y 284. `pose` lifts the hands."""
    out = solid("M182,252Q214,250 222,272Q200,284 176,272Z", TURTLE, 4)
    rim = "".join(stroke(d, shade(SHELL, 0.35), 4) for d in ("M40,178L66,194", "M32,216H62", "M40,252L66,240", "M200,178L174,194", "M208,216H178", "M200,252L174,240"))
    if look == "muddy":
        rim += mud_spots(((40, 194, 13), (204, 232, 15), (52, 262, 12), (192, 172, 10)))
    out += solid(f"M120,{140 - breath}C176,{140 - breath} 216,174 216,218C216,260 176,280 120,280C64,280 24,260 24,218C24,174 64,{140 - breath} 120,{140 - breath}Z", SHELL, 9, inside=rim)
    for x in (76, 164):
        out += solid(ellipse(x, 268, 32, 16), MUD if look == "muddy" else TURTLE, 4) + stroke(f"M{x - 10},270V279M{x + 2},270V280M{x + 13},270V279", OUTLINE, 3)
    plates = "".join(stroke(d, shade(BELLY, 0.35), 4) for d in ("M60,196Q120,208 180,196", "M58,232Q120,244 182,232", "M120,160V272"))
    if look == "muddy":
        plates += mud_spots(((92, 190, 13), (148, 222, 17), (100, 250, 14), (150, 262, 9), (76, 222, 8)))
    out += solid(f"M120,{156 - breath}C160,{156 - breath} 176,186 174,220C172,254 154,270 120,270C86,270 68,254 66,220C64,186 80,{156 - breath} 120,{156 - breath}Z", BELLY, 6, inside=plates)
    if look in ("parched", "scratch"):
        out += scratch(120, 222)
    elif look == "well":
        out += move(bandage_strip(120, 220, 64, 24), turn=-24, about=(120, 220))
    left, right = (("M64,196Q40,206 36,230", "M176,196Q200,206 204,230"), ("M64,196Q36,200 26,180", "M176,196Q204,200 214,180"))[pose if look != "well" else 1 - pose]
    paw = MUD if look == "muddy" else TURTLE
    for arm in (left, right):
        out += limb(arm, paw, 22)
    out += move(turtle_head("parched" if look == "parched" and mood == "hope" else mood, look), 0, -breath)
    if look == "scratch" and mood != "ow":
        out += sparkle(216, 118, 11) + sparkle(26, 134, 9) + sparkle(196, 30, 8)
    if mood == "ow":
        out += star(28, 36, 14) + star(212, 32, 16) + star(122, 16, 12)
    return move(out, 4, 4 - hop)


def turtle_face(cx, cy, s=1.0):
    """The turtle's pictogram: the head before its shell."""
    out = solid(ellipse(0, 6, 36, 26), SHELL, 4, inside=stroke("M-36,4H-24M36,4H24M-26,-12L-18,-4M26,-12L18,-4", shade(SHELL, 0.35), 3))
    out += solid(ellipse(0, 0, 26, 24), TURTLE, 4, inside=flat(ellipse(0, 18, 20, 12), light(TURTLE, 0.45)) + flat(ellipse(0, -19, 7, 4), shade(TURTLE, 0.3)))
    out += flat(ellipse(-11, -4, 4, 5.5), OUTLINE) + flat(ellipse(11, -4, 4, 5.5), OUTLINE) + flat(ellipse(-3, 4, 1.5), OUTLINE) + flat(ellipse(3, 4, 1.5), OUTLINE)
    return move(out + stroke("M-10,10Q0,18 10,10", OUTLINE, 2.5), cx, cy, size=s)
