"""The cat: first with fleas, then with bites that itch, then dabbed with lotion, at last with a collar of its own."""

from shapes import (
    CORAL, CREAM, ORANGE, OUTLINE, PINK, TEAL, WHITE, YELLOW, cheek, ellipse, eye, flat, light, limb, move, poly,
    shut_eye, solid, sparkle, squeezed_eye, star, stroke, tear,
)

CAT = ORANGE
STRIPE = "#c9702c"


def flea(cx, cy, s=1.0, turn=0):
    """A cheeky little flea."""
    legs = "".join(stroke(f"M{x},4L{x - 3},10M{x},-4L{x - 3},-10", OUTLINE, 2) for x in (-4, 1, 6))
    out = legs + solid(ellipse(0, 0, 10, 7), "#7a4a3a", 0, 2.5) + flat(ellipse(6, -2, 2.6), WHITE) + flat(ellipse(6.6, -2, 1.3), OUTLINE)
    return move(out, cx, cy, turn=turn, size=s)


def bite(cx, cy):
    """The bump that a flea leaves."""
    return flat(ellipse(cx, cy, 9, 8), light(CORAL, 0.35)) + flat(ellipse(cx, cy, 5, 4.5), CORAL)


def dab(cx, cy, r):
    """A dab of the pink lotion."""
    return flat(ellipse(cx, cy, r, r * 0.75), light(PINK, 0.3)) + flat(ellipse(cx - r * 0.3, cy - r * 0.25, r * 0.35, r * 0.2), WHITE)


def cat_head(mood, look):
    """The head about (120, 98). Moods as the dog's."""
    low = {"sad": 7, "blink": 7, "ow": 11}.get(mood, 0)
    left = f"M50,78L{44 - low},{12 + low * 2}Q48,{2 + low * 2} 60,{12 + low}L104,44Z"
    right = f"M190,78L{196 + low},{12 + low * 2}Q192,{2 + low * 2} 180,{12 + low}L136,44Z"
    out = solid(left, CAT, 5, inside=flat(poly((56, 70), (56, 26 + low * 2), (88, 46)), PINK))
    out += solid(right, CAT, 5, inside=flat(poly((184, 70), (184, 26 + low * 2), (152, 46)), PINK))
    skull = "M120,32C174,32 202,66 200,104C198,144 164,160 120,160C76,160 42,144 40,104C38,66 66,32 120,32Z"
    stripes = "".join(stroke(d, STRIPE, 9) for d in ("M120,34V62", "M98,36Q100,50 104,60", "M142,36Q140,50 136,60", "M38,104H62", "M42,124L64,120", "M202,104H178", "M198,124L176,120"))
    marks = ""
    if look == "itchy":
        for x, y in ((80, 56), (160, 56), (60, 92), (182, 92), (64, 138), (180, 136), (132, 62)):
            marks += bite(x, y)
    if look == "lotion":
        for x, y, r in ((84, 56, 10), (156, 52, 12), (62, 90, 8), (180, 90, 9), (62, 138, 8), (182, 136, 8), (128, 62, 8)):
            marks += dab(x, y, r)
    out += solid(skull, CAT, 7, inside=stripes + marks, glint=(84, 50, 13, 6) if not marks else None)
    out += solid("M120,116C146,112 160,126 152,140C146,152 130,152 120,144C110,152 94,152 88,140C80,126 94,112 120,116Z", CREAM, 4, 3.5)
    for s in (-1, 1):
        for y, dy in ((128, -5), (136, 3)):
            out += stroke(f"M{120 + s * 44},{y}L{120 + s * 84},{y + dy}", OUTLINE, 2.5)
    if mood in ("sad", "hope"):
        out += eye(84, 96, 13, 15) + eye(156, 96, 13, 15)
    elif mood in ("blink", "hopeblink"):
        out += shut_eye(84, 99, 13) + shut_eye(156, 99, 13)
    elif mood == "ow":
        out += squeezed_eye(84, 98, 12) + squeezed_eye(156, 98, 12, left=False)
    elif mood == "happy":
        out += eye(84, 94, 14, 16) + eye(156, 94, 14, 16)
    else:
        out += shut_eye(84, 100, 14, up=True) + shut_eye(156, 100, 14, up=True)
    if mood in ("sad", "blink", "ow"):
        out += stroke("M68,76Q78,68 92,72") + stroke("M172,76Q162,68 148,72")
    out += cheek(64, 122, 11, 7) + cheek(176, 122, 11, 7)
    if mood in ("sad", "blink"):
        out += stroke("M104,144Q112,134 120,137Q128,134 136,144", OUTLINE, 3.5)
    elif mood == "ow":
        out += solid("M106,142Q108,132 120,132Q132,132 134,142Q128,149 120,146Q112,149 106,142Z", "#a8443d", 0, 3)
    elif mood in ("hope", "hopeblink"):
        out += stroke("M104,134Q112,142 120,135Q128,142 136,134", OUTLINE, 3.5)
    else:
        out += solid("M106,133Q113,139 120,135Q127,139 134,133Q133,153 120,153Q107,153 106,133Z", "#a8443d", 0, 3, inside=flat(ellipse(120, 151, 9, 6), PINK))
    out += solid("M110,119Q120,114 130,119Q128,129 120,130Q112,129 110,119Z", "#d9667a", 0, 3)
    if mood in ("sad", "blink"):
        out += tear(60, 116, 6)
    if mood == "ow":
        out += tear(54, 120, 8) + tear(186, 120, 8)
    return out


def cat(mood="sad", look="fleas", tail=0, breath=0, hop=0, itch=0):
    """The cat, sitting, in a frame of 250 by 290, feet at y 284. `itch` moves the fleas."""
    swing = {-1: "M172,258Q226,264 222,222", 0: "M172,256Q230,254 224,200Q222,184 208,190", 1: "M172,254Q236,240 222,178Q216,160 200,170"}[tail]
    out = limb(swing, CAT, 20)
    marks = "".join(stroke(d, STRIPE, 9) for d in ("M58,200Q70,206 78,204", "M54,222Q66,228 76,226", "M182,200Q170,206 162,204", "M186,222Q174,228 164,226"))
    if look == "itchy":
        for x, y in ((70, 190), (170, 196), (66, 244), (178, 250), (120, 190), (96, 250)):
            marks += bite(x, y)
    if look == "lotion":
        for x, y, r in ((70, 190, 10), (170, 196, 10), (66, 244, 9), (178, 250, 10), (120, 190, 8), (96, 250, 8)):
            marks += dab(x, y, r)
    out += solid(f"M120,{148 - breath}C170,{148 - breath} 192,206 188,252Q184,280 120,280Q56,280 52,252C48,206 70,{148 - breath} 120,{148 - breath}Z", CAT, 8,
                 inside=flat(ellipse(120, 228, 36, 50), CREAM) + marks)  # fmt: skip
    out += solid(ellipse(70, 270, 28, 14), CAT, 4) + solid(ellipse(170, 270, 28, 14), CAT, 4)
    for x in (58, 70, 162, 174):
        out += stroke(f"M{x},272V280", OUTLINE, 3)
    for x in (102, 138):
        out += limb(f"M{x},206V258", CAT, 24) + solid(ellipse(x, 266, 20, 14), CREAM, 4)
        out += stroke(f"M{x - 6},268V277M{x + 6},268V277", OUTLINE, 3)
    if look == "collar":
        out += solid("M74,158Q120,186 166,158L162,175Q120,202 78,175Z", TEAL, 4)
        out += solid(ellipse(120, 196, 12, 12), YELLOW, 3, glint=(116, 191, 3, 3)) + stroke("M113,199H127", OUTLINE, 3)
    out += move(cat_head(mood, look), 0, -breath)
    if look == "fleas":
        places = ((40, 172, 20), (206, 150, 160), (150, 26, -70), (92, 218, 0), (196, 92, 120), (30, 84, 60))
        for i, (x, y, turn) in enumerate(places):
            jump = -12 if (i + itch) % 2 else 0
            out += flea(x, y + jump, 0.95, turn if not jump else turn + 25)
    if look == "lotion":
        out += sparkle(214, 130, 11) + sparkle(32, 150, 9) + sparkle(196, 40, 8)
    if mood == "ow":
        out += star(30, 36, 14) + star(212, 30, 16) + star(122, 14, 12)
    return move(out, 4, 4 - hop)


def cat_face(cx, cy, s=1.0):
    """The cat's pictogram."""
    out = solid("M-26,-8L-28,-32Q-26,-36 -20,-32L-2,-20Z", CAT, 3) + solid("M26,-8L28,-32Q26,-36 20,-32L2,-20Z", CAT, 3)
    out += solid(ellipse(0, 0, 28, 24), CAT, 4, inside=stroke("M0,-26V-14M-9,-26L-8,-16M9,-26L8,-16", STRIPE, 4))
    out += flat(ellipse(-11, -3, 4, 5.5), OUTLINE) + flat(ellipse(11, -3, 4, 5.5), OUTLINE) + flat("M-4,5H4L0,10Z", "#d9667a")
    out += stroke("M-7,14Q-3,18 0,13Q3,18 7,14", OUTLINE, 2.5) + stroke("M-16,8L-34,5M-16,12L-33,15M16,8L34,5M16,12L33,15", OUTLINE, 2)
    return move(out, cx, cy, size=s)
