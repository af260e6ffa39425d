"""Rooms and what stands in them. The tool bar covers every room from y 490 down."""

import math

from shapes import (
    CORAL, CREAM, DARKWOOD, GREEN, LAVENDER, ORANGE, OUTLINE, PINK, SKY, TEAL, WHITE, WOOD, YELLOW, box, ellipse,
    flat, heart_path, light, limb, move, paw_print, poly, shade, solid, star_path, stroke,
)

FLOOR = 458


def wall(colour, pattern="dots"):
    """A wall with a soft pattern, a wainscot, a skirting board and a wooden floor. Fills 800 by 600."""
    out = flat("M0,0H800V600H0Z", colour)
    soft = light(colour, 0.35)
    for row in range(0, 8):
        for col in range(0, 12):
            x, y = col * 72 + (row % 2) * 36, row * 46 + 18
            if pattern == "dots":
                out += flat(ellipse(x, y, 5), soft)
            elif pattern == "hearts":
                out += flat(heart_path(x, y, 7), soft)
            else:
                out += flat(star_path(x, y, 9), soft)
    out += flat(f"M0,330H800V{FLOOR}H0Z", light(colour, 0.5))
    for x in range(40, 800, 80):
        out += stroke(f"M{x},342V{FLOOR - 18}", shade(colour, 0.12), 3)
    out += flat("M0,322H800V336H0Z", shade(colour, 0.16)) + stroke("M0,322H800M0,336H800", shade(colour, 0.55), 3)
    out += flat(f"M0,{FLOOR}H800V600H0Z", WOOD)
    boards = (FLOOR, 478, 504, 536, 574)
    for i, y in enumerate(boards[1:]):
        out += stroke(f"M0,{y}H800", shade(WOOD, 0.28), 3)
        for x in range(-60 + (i % 2) * 70, 820, 150):
            out += stroke(f"M{x},{boards[i]}V{y}", shade(WOOD, 0.28), 3)
    out += flat(f"M0,{FLOOR - 14}H800V{FLOOR}H0Z", CREAM) + stroke(f"M0,{FLOOR - 14}H800M0,{FLOOR}H800", OUTLINE, 3)
    return out + flat("M0,0H800V600H0Z", "url(#warmth)")


def sunbeam(points):
    """Light that fades towards the lower edge; for full screens only, since it is half transparent."""
    return flat(poly(*points), "url(#beam)")


def shadow(cx, cy, rx, ry=8):
    """A soft shadow on the floor; for full screens only, since it is half transparent."""
    return flat(ellipse(cx, cy, rx, ry), "#6b3a26", 0.24)


def window(x, y, w, h, view=""):
    """A window with sky, hills and curtains."""
    inside = flat(box(x, y, w, h, 0), SKY)
    inside += flat(ellipse(x + w * 0.26, y + h * 0.3, w * 0.11), YELLOW)
    inside += flat(ellipse(x + w * 0.7, y + h * 0.26, w * 0.12, h * 0.08), WHITE) + flat(ellipse(x + w * 0.8, y + h * 0.31, w * 0.1, h * 0.07), WHITE)
    inside += flat(ellipse(x + w * 0.2, y + h * 1.08, w * 0.5, h * 0.42), GREEN) + flat(ellipse(x + w * 0.85, y + h * 1.1, w * 0.5, h * 0.36), light(GREEN, 0.3))
    inside += view
    out = solid(box(x - 9, y - 9, w + 18, h + 18, 12), CREAM, 4)
    out += solid(box(x, y, w, h, 6), SKY, 0, inside=inside)
    out += stroke(f"M{x + w / 2},{y}V{y + h}M{x},{y + h / 2}H{x + w}", OUTLINE, 9) + stroke(f"M{x + w / 2},{y}V{y + h}M{x},{y + h / 2}H{x + w}", CREAM, 4)
    out += solid(box(x - 16, y + h + 6, w + 32, 14, 6), WOOD, 4)
    return out


def curtains(x, y, w, h, colour):
    out = ""
    for side in (0, 1):
        edge = x - 16 if side == 0 else x + w + 16
        s = 1 if side == 0 else -1
        d = f"M{edge},{y - 18}H{edge + s * w * 0.36}Q{edge + s * w * 0.34},{y + h * 0.5} {edge + s * w * 0.1},{y + h * 0.72}Q{edge + s * w * 0.16},{y + h * 0.9} {edge + s * w * 0.14},{y + h}H{edge - s * 4}Z"
        out += solid(d, colour, 4) + stroke(f"M{edge + s * w * 0.12},{y - 10}Q{edge + s * w * 0.12},{y + h * 0.4} {edge + s * w * 0.05},{y + h * 0.66}", shade(colour, 0.35), 3)
    return out + solid(box(x - 28, y - 26, w + 56, 13, 6), DARKWOOD, 3)


def plant(x, y, s=1.0):
    """A pot plant standing on (x, y)."""
    out = ""
    for turn, size in ((-58, 0.9), (58, 0.9), (-30, 1.05), (30, 1.05), (0, 1.2)):
        leaf = solid("M0,0C-20,-22 -16,-58 0,-76C16,-58 20,-22 0,0Z", GREEN, 4) + stroke("M0,-6V-56", shade(GREEN, 0.4), 3)
        out += move(move(leaf, turn=turn, size=size), 0, -52)
    out += solid("M-28,-54H28L21,0H-21Z", CORAL, 5) + solid(box(-33, -62, 66, 17, 6), CORAL, 4)
    return move(out, x, y, size=s)


def rug(cx, cy, rx, ry, colour, inner):
    out = solid(ellipse(cx, cy, rx, ry), colour, 4)
    return out + stroke(ellipse(cx, cy, rx - 14, ry - 6), inner, 5) + flat(ellipse(cx, cy, rx - 36, ry - 15), light(colour, 0.35))


def poster(x, y, w, h, sign, colour=WHITE):
    out = solid(box(x, y, w, h, 5), colour, 4) + sign
    out += solid(ellipse(x + 10, y + 7, 5), CORAL, 0, 2.5) + solid(ellipse(x + w - 10, y + 7, 5), CORAL, 0, 2.5)
    return out


def bunting(x1, x2, y, colours):
    out = stroke(f"M{x1},{y}Q{(x1 + x2) / 2},{y + 34} {x2},{y}", OUTLINE, 3)
    count = 7
    for i in range(count):
        t = (i + 0.5) / count
        px = x1 + (x2 - x1) * t
        py = y + 34 * 2 * t * (1 - t)
        out += solid(poly((px - 15, py - 1), (px + 15, py - 1), (px, py + 27)), colours[i % len(colours)], 3, 3)
    return out


def lamp(cx, y):
    """A hanging lamp with its cord from the ceiling and its light below."""
    out = sunbeam(((cx - 40, y + 30), (cx + 40, y + 30), (cx + 120, y + 280), (cx - 120, y + 280)))
    out += stroke(f"M{cx},-4V{y}", OUTLINE, 4) + solid(ellipse(cx, y + 34, 14, 13), YELLOW, 3)
    return out + solid(f"M{cx - 46},{y + 34}Q{cx - 40},{y} {cx},{y}Q{cx + 40},{y} {cx + 46},{y + 34}Z", CORAL, 5)


def clock(cx, cy, r):
    out = solid(ellipse(cx, cy, r), WOOD, 4) + solid(ellipse(cx, cy, r - 9), WHITE, 3, 3)
    for i in range(12):
        a = math.radians(i * 30)
        out += flat(ellipse(cx + (r - 15) * math.cos(a), cy + (r - 15) * math.sin(a), 2), OUTLINE)
    return out + stroke(f"M{cx},{cy}V{cy - r * 0.42}M{cx},{cy}L{cx + r * 0.3},{cy + r * 0.12}", CORAL, 4) + flat(ellipse(cx, cy, 4), OUTLINE)


def door_leaf(colour, sign, open_door=False):
    """A door in a frame of 132 by 234 with a margin of 6; the sign hangs about (66, 84)."""
    out = solid("M6,228V34Q6,6 34,6H98Q126,6 126,34V228Z", CREAM, 4)
    leaf = "M18,228V40Q18,18 40,18H92Q114,18 114,40V228Z"
    if open_door:
        out += solid(leaf, "#ffe9a6", 0, inside=flat("M18,190L114,176V228H18Z", WOOD))
        swing = "M18,228V40Q18,18 40,18H72Q90,20 90,42V216Z"
        out += solid(swing, colour, 5) + stroke("M27,150H78V206L27,214Z", shade(colour, 0.4), 3)
        out += move(sign, -12, 0, size=(0.8, 1), about=(66, 84)) + solid(ellipse(80, 136, 7), YELLOW, 2, 3)
    else:
        out += solid(leaf, colour, 6) + stroke("M32,152H100V212H32Z", shade(colour, 0.4), 3)
        out += sign + solid(ellipse(100, 136, 7), YELLOW, 2, 3)
    return out


def lift_leaf(colour, open_door=False):
    """The elevator's double door in the frame of a door, with its two arrows above."""
    out = solid("M6,228V18Q6,6 18,6H114Q126,6 126,18V228Z", CREAM, 4)
    out += solid(box(24, 14, 84, 34, 12), shade(LAVENDER, 0.4), 0, 3)
    for x, up in ((48, True), (84, False)):
        lit = YELLOW if open_door else light(YELLOW, 0.3)
        out += solid(poly((x - 12, 38), (x + 12, 38), (x, 21)) if up else poly((x - 12, 24), (x + 12, 24), (x, 41)), lit, 0, 2.5)
    out += solid(box(18, 56, 96, 172, 4), "#ffe9a6" if open_door else shade(colour, 0.3), 0, 3)
    for side in (0, 1):
        x = (18, 66)[side] if not open_door else (18, 94)[side]
        out += solid(box(x, 56, 48 if not open_door else 20, 172, 3), colour, 4, 3.5)
        if not open_door:
            out += stroke(f"M{x + 14},72V212", light(colour, 0.6), 4)
    if open_door:
        out += flat(box(40, 176, 52, 50, 3), WOOD) + solid(ellipse(66, 100, 9), YELLOW, 0, 3) + solid(ellipse(66, 128, 9), GREEN, 0, 3)
    return out


def sign_plate(sign, fill=CREAM):
    """The round plate on a door."""
    return solid(ellipse(66, 84, 40), fill, 4) + sign


def desk(x, y, w, h, colour):
    """The front of a desk standing on y + h, with its top as an overhanging board."""
    out = solid(box(x, y, w, h, 8), colour, 6)
    for i in range(2):
        out += stroke(box(x + 14 + i * (w / 2 - 6), y + 34, w / 2 - 24, h - 52, 8), shade(colour, 0.4), 3)
    out += solid(box(x - 12, y - 4, w + 24, 22, 8), shade(colour, 0.12), 4)
    return out + flat(heart_path(x + w / 4 + 3, y + 34 + (h - 52) / 2, 12), light(colour, 0.5)) + flat(heart_path(x + w * 0.75 - 3, y + 34 + (h - 52) / 2, 12), light(colour, 0.5))


def bell(cx, cy):
    return solid(f"M{cx - 17},{cy}Q{cx - 15},{cy - 20} {cx},{cy - 20}Q{cx + 15},{cy - 20} {cx + 17},{cy}Z", YELLOW, 3) + solid(box(cx - 20, cy - 2, 40, 7, 3), DARKWOOD, 0, 3) + solid(ellipse(cx, cy - 23, 4), CORAL, 0, 3)


def table(x, y, w, h, colour):
    """An examination table with a cushion, standing on y + h."""
    out = limb(f"M{x + 26},{y + 24}V{y + h - 4}", DARKWOOD, 14) + limb(f"M{x + w - 26},{y + 24}V{y + h - 4}", DARKWOOD, 14)
    out += stroke(f"M{x + 30},{y + h - 30}H{x + w - 30}", OUTLINE, 15) + stroke(f"M{x + 30},{y + h - 30}H{x + w - 30}", DARKWOOD, 7)
    out += solid(box(x, y + 10, w, 30, 10), WOOD, 5)
    return out + solid(box(x + 8, y - 10, w - 16, 28, 13), colour, 6) + stroke(f"M{x + 26},{y}H{x + w * 0.5}", light(colour, 0.7), 4)


def shelf(x, y, w):
    out = solid(f"M{x + 24},{y + 14}H{x + 44}L{x + 24},{y + 44}Z", DARKWOOD, 2) + solid(f"M{x + w - 24},{y + 14}H{x + w - 44}L{x + w - 24},{y + 44}Z", DARKWOOD, 2)
    return out + solid(box(x, y, w, 18, 7), WOOD, 4)


def cupboard(x, y, w, h, colour):
    """A tall open cupboard with two boards."""
    out = solid(box(x, y, w, h, 12), colour, 7)
    out += solid(box(x + 16, y + 16, w - 32, h - 46, 6), shade(colour, 0.38), 0)
    return out + flat(box(x + 18, y + 18, w - 36, 16, 4), shade(colour, 0.55), 0.5)


def ball(cx, cy, r):
    return solid(ellipse(cx, cy, r), CORAL, 5, inside=stroke(f"M{cx - r},{cy}Q{cx},{cy - r * 0.7} {cx + r},{cy}", YELLOW, r * 0.4), glint=(cx - r * 0.35, cy - r * 0.5, r * 0.2, r * 0.14))


def bone(cx, cy, s=1.0, turn=0):
    d = "M-22,-7C-26,-18 -42,-14 -38,0C-42,14 -26,18 -22,7H22C26,18 42,14 38,0C42,-14 26,-18 22,-7Z"
    return move(solid(d, CREAM, 4), cx, cy, turn=turn, size=s)


def bowl(cx, cy):
    return solid(ellipse(cx, cy - 14, 34, 10), DARKWOOD, 0) + solid(f"M{cx - 36},{cy - 14}Q{cx - 30},{cy + 10} {cx - 26},{cy + 10}H{cx + 26}Q{cx + 30},{cy + 10} {cx + 36},{cy - 14}Q{cx},{cy + 4} {cx - 36},{cy - 14}Z", TEAL, 4) + paw_print(cx, cy - 1, 8, CREAM)


def cloud(cx, cy, s=1.0):
    d = "M-60,20Q-84,18 -80,-4Q-74,-22 -52,-18Q-44,-44 -14,-42Q14,-44 24,-22Q50,-34 64,-12Q86,-10 80,8Q78,20 60,20Z"
    return move(solid(d, WHITE, 7), cx, cy, size=s)


def tree(x, y, s=1.0):
    out = limb("M0,-4V-70", DARKWOOD, 22)
    out += solid("M-10,-60C-60,-50 -82,-100 -54,-130C-60,-176 0,-196 24,-168C66,-176 88,-128 64,-102C76,-62 26,-44 -10,-60Z", GREEN, 10, glint=(-24, -142, 18, 9))
    for px, py in ((-30, -90), (30, -96), (8, -134), (44, -130), (-36, -126)):
        out += solid(ellipse(px, py, 9), CORAL, 3, 3)
    return move(out, x, y, size=s)


def flower(x, y, colour, s=1.0):
    out = stroke("M0,0V-26", shade(GREEN, 0.3), 4)
    for i in range(5):
        a = math.radians(i * 72 - 90)
        out += solid(ellipse(8 * math.cos(a), -32 + 8 * math.sin(a), 6.5), colour, 0, 3)
    return move(out + solid(ellipse(0, -32, 5), YELLOW, 0, 2.5), x, y, size=s)


def wool(cx, cy, r):
    lines = "".join(stroke(f"M{cx - r},{cy + k}Q{cx},{cy + k - r} {cx + r},{cy + k}", light(PINK, 0.6), 3) for k in (-8, 0, 8, 16))
    return stroke(f"M{cx + r - 4},{cy + 12}Q{cx + r + 12},{cy + 20} {cx + r + 24},{cy + 14}", PINK, 4) + solid(ellipse(cx, cy, r), PINK, 4, inside=lines)


def fish(cx, cy, s=1.0):
    out = solid(poly((18, 0), (38, -16), (38, 16)), CORAL, 3) + solid(ellipse(-4, 0, 28, 18), CORAL, 4, inside=stroke("M8,-18Q0,0 8,18", light(CORAL), 4))
    return move(out + flat(ellipse(-18, -3, 4, 5), OUTLINE), cx, cy, size=s)


def carrot(cx, cy, s=1.0, turn=0):
    out = stroke("M0,-22V-40M-4,-22L-14,-36M4,-22L14,-36", GREEN, 7)
    out += solid("M-16,-22H16Q12,20 0,38Q-12,20 -16,-22Z", ORANGE, 4) + stroke("M-12,-8H-2M4,6H11", shade(ORANGE, 0.5), 3)
    return move(out, cx, cy, turn=turn, size=s)
