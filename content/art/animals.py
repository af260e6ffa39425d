"""The patients. Big heads, big eyes; hurt is a pout and a tear, cured is a smile and a jump."""

from shapes import (
    CORAL, CREAM, DARKWOOD, FUR, OUTLINE, PEACH, PINK, YELLOW, box, cheek, ellipse, eye, flat, heart_path, light,
    limb, move, shade, shut_eye, solid, sparkle, squeezed_eye, star, stroke, tear,
)

DOG = FUR
EAR = "#a9683c"


def dog_paw(cx, cy, paw):
    """The lifted paw, pads to the front. `paw` is "cut", "clean" or "bandaid"."""
    out = solid(ellipse(cx, cy, 29, 28), DOG, 5)
    out += flat(ellipse(cx, cy + 8, 12, 9), shade(PINK, 0.1))
    for dx, dy in ((-16, -6), (-6, -15), (7, -15), (17, -5)):
        out += flat(ellipse(cx + dx, cy + dy, 4.6, 5.4), shade(PINK, 0.1))
    if paw == "cut":
        for dx, dy, r in ((-15, 10, 6), (13, 14, 5), (-2, -20, 4), (19, 3, 4)):
            out += flat(ellipse(cx + dx, cy + dy, r, r * 0.8), DARKWOOD)
        out += stroke(f"M{cx - 12},{cy + 10}L{cx + 12},{cy - 4}", CORAL, 5)
        for k in (-6, 1, 8):
            out += stroke(f"M{cx + k - 3},{cy - k * 0.55 - 2}L{cx + k + 3},{cy - k * 0.55 + 8}", CORAL, 3)
    elif paw == "clean":
        out += stroke(f"M{cx - 11},{cy + 9}L{cx + 11},{cy - 3}", CORAL, 4)
        out += sparkle(cx + 25, cy - 26, 11) + sparkle(cx - 29, cy + 22, 8) + sparkle(cx + 32, cy + 14, 7)
    else:
        out += move(bandage_strip(cx, cy + 2, 58, 21), turn=-24, about=(cx, cy))
    return out


def bandage_strip(cx, cy, w, h):
    """A sticking plaster lying flat."""
    strip = PEACH
    inside = flat(box(cx - w * 0.2, cy - h / 2, w * 0.4, h, 2), light(strip, 0.6))
    for dx in (-0.09, 0.09):
        for dy in (-0.2, 0.2):
            inside += flat(ellipse(cx + w * dx, cy + h * dy, 1.8), shade(strip, 0.5))
    return solid(box(cx - w / 2, cy - h / 2, w, h, h / 2), "#f3b285", 3, 3.5, inside)


def dog_head(mood):
    """The head about (120, 98). Moods: sad, blink, ow, hope, hopeblink, happy, joy."""
    droop = {"sad": 6, "blink": 6, "ow": 10}.get(mood, 0)
    perk = 8 if mood in ("happy", "joy") else 0
    left = f"M58,62C30,{56 - perk} 16,{96 + droop} 24,{138 + droop - perk}C34,{152 + droop - perk} 58,{138 + droop} 62,104Z"
    right = f"M182,62C210,{56 - perk} 224,{96 + droop} 216,{138 + droop - perk}C206,{152 + droop - perk} 182,{138 + droop} 178,104Z"
    skull = "M120,30C172,30 196,62 194,100C194,142 162,160 120,160C78,160 46,142 46,100C44,62 68,30 120,30Z"
    patch = flat(ellipse(158, 84, 32, 36), shade(EAR, 0.0))
    blaze = flat("M120,26C106,26 104,60 110,92H130C136,60 134,26 120,26Z", CREAM)
    out = solid(skull, DOG, 7, inside=patch + blaze, glint=(82, 48, 14, 7))
    out += solid(left, EAR, 5) + solid(right, EAR, 5)
    out += solid(ellipse(120, 126, 44, 31), CREAM, 5)
    if mood in ("sad", "hope"):
        out += eye(86, 92, 12, 15) + eye(154, 92, 12, 15)
    elif mood in ("blink", "hopeblink"):
        out += shut_eye(86, 95, 12) + shut_eye(154, 95, 12)
    elif mood == "ow":
        out += squeezed_eye(86, 94, 12) + squeezed_eye(154, 94, 12, left=False)
    elif mood == "happy":
        out += eye(86, 90, 13, 16) + eye(154, 90, 13, 16)
    else:
        out += shut_eye(86, 96, 13, up=True) + shut_eye(154, 96, 13, up=True)
    if mood in ("sad", "blink", "ow"):
        out += stroke("M70,72Q80,62 94,66") + stroke("M170,72Q160,62 146,66")
    elif mood in ("happy", "joy"):
        out += stroke("M74,64Q84,56 96,62") + stroke("M166,64Q156,56 144,62")
    out += cheek(72, 120, 11, 7) + cheek(168, 120, 11, 7)
    if mood in ("sad", "blink"):
        out += stroke("M120,124V132") + stroke("M102,144Q111,132 120,134Q129,132 138,144")
    elif mood == "ow":
        out += stroke("M120,122V128")
        out += solid("M104,142Q106,130 120,130Q134,130 136,142Q130,150 120,146Q110,150 104,142Z", "#a8443d", 0)
    elif mood in ("hope", "hopeblink"):
        out += stroke("M120,124V132") + stroke("M102,132Q111,142 120,134Q129,142 138,132")
    else:
        out += solid("M102,130Q111,138 120,132Q129,138 138,130Q136,156 120,156Q104,156 102,130Z", "#a8443d", 0,
                     inside=flat(ellipse(120, 155, 13, 11), PINK))  # fmt: skip
        out += stroke("M120,122V132")
    out += solid(ellipse(120, 112, 15, 11), "#5a3a31", 0, glint=(115, 108, 5, 3))
    if mood == "sad" or mood == "blink":
        out += tear(66, 112, 6)
    if mood == "ow":
        out += tear(58, 116, 8) + tear(182, 116, 8)
    return out


def dog(mood="sad", paw="cut", tail=0, breath=0, hop=0):
    """The dog, sitting, in a frame of 250 by 290, feet at y 284. `tail` swings it, `hop` lifts all."""
    tip = {-1: "M66,250Q26,258 16,236", 0: "M66,246Q22,244 18,208", 1: "M66,242Q30,226 34,186"}[tail]
    out = limb(tip, DOG, 20)
    out += solid(f"M120,{150 - breath}C176,{150 - breath} 196,210 190,252Q186,280 120,280Q54,280 50,252C44,210 64,{150 - breath} 120,{150 - breath}Z", DOG, 8,
                 inside=flat(ellipse(120, 224, 42, 52), CREAM))  # fmt: skip
    out += solid(ellipse(70, 270, 30, 15), DOG, 4) + solid(ellipse(172, 270, 30, 15), DOG, 4)
    for x in (58, 72, 162, 176):
        out += stroke(f"M{x},{272}V{280}", OUTLINE, 3)
    out += limb("M98,206V258", DOG, 28) + solid(ellipse(96, 266, 23, 15), DOG, 4)
    for x in (90, 103):
        out += stroke(f"M{x},268V278", OUTLINE, 3)
    out += solid("M76,156Q120,184 164,156L160,174Q120,200 80,174Z", CORAL, 4)
    out += solid(ellipse(120, 193, 11, 11), YELLOW, 3) + flat(heart_path(120, 193, 5), CORAL)
    out += move(dog_head(mood), 0, -breath)
    out += limb("M150,210Q176,218 196,208", DOG, 26)
    out += dog_paw(206, 200, paw)
    if mood == "ow":
        out += star(36, 40, 15) + star(206, 32, 17) + star(122, 14, 12)
    return move(out, 4, 4 - hop)
