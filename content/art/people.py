"""The doctor: a friendly face, a white coat, a stethoscope."""

from shapes import (
    CORAL, DARKWOOD, OUTLINE, PINK, SKIN, TEAL, YELLOW, box, cheek, ellipse, eye, flat, light, limb, n, paw_print,
    shade, shut_eye, solid, stroke,
)

HAIR = "#9c5a37"
COAT = "#fffaf0"


def doctor_head(eyes="open", mouth="smile"):
    """The head about (95, 98)."""
    out = solid(ellipse(95, 27, 22, 20), HAIR, 5)
    out += solid(ellipse(95, 92, 70, 66), HAIR, 7)
    out += solid(ellipse(32, 108, 11, 14), SKIN, 3) + solid(ellipse(158, 108, 11, 14), SKIN, 3)
    face = ellipse(95, 104, 58, 54)
    out += solid(face, SKIN, 5)
    fringe = "M36,104C32,58 62,38 98,40C134,40 160,62 154,104C150,84 138,74 122,72C108,82 82,86 66,74C50,78 42,88 36,104Z"
    out += solid(fringe, HAIR, 4, glint=(72, 55, 15, 5))
    out += solid(box(74, 40, 42, 9, 5), CORAL, 0, 0)
    out += stroke("M80,44H110", light(CORAL), 3)
    if eyes == "open":
        out += eye(72, 108) + eye(118, 108)
    elif eyes == "shut":
        out += shut_eye(72, 108) + shut_eye(118, 108)
    else:
        out += shut_eye(72, 110, up=True) + shut_eye(118, 110, up=True)
    out += stroke(ellipse(72, 108, 19, 19), TEAL, 3.5) + stroke(ellipse(118, 108, 19, 19), TEAL, 3.5)
    out += stroke("M91,106Q95,102 99,106", TEAL, 3.5)
    out += cheek(57, 133, 11, 7) + cheek(133, 133, 11, 7)
    out += stroke("M93,122Q96,126 99,122", shade(SKIN, 0.5), 3.5)
    if mouth == "smile":
        out += stroke("M78,136Q95,150 112,136")
    elif mouth == "talk":
        out += solid("M80,134Q95,130 110,134Q110,154 95,154Q80,154 80,134Z", "#a8443d", 0, inside=flat(ellipse(95, 152, 10, 6), PINK))
    else:
        out += solid(ellipse(95, 141, 7, 7), "#a8443d", 0)
    return out


def doctor_eyes():
    """The shut eyes alone, cut along the glasses: laid over any look of the doctor, he blinks."""
    ring = ellipse(72, 108, 21, 21) + ellipse(118, 108, 21, 21)
    return f'<clipPath id="glasses"><path d="{ring}"/></clipPath><g clip-path="url(#glasses)">{doctor_head("shut")}</g>'


def doctor_body(arm="down"):
    """The body from the shoulders to the shoes, feet at y 326."""
    out = limb("M76,272V306", TEAL, 22) + limb("M114,272V306", TEAL, 22)
    out += solid("M54,322Q52,306 72,306Q90,306 90,322Q90,326 86,326H58Q54,326 54,322Z", DARKWOOD, 3)
    out += solid("M100,322Q100,306 118,306Q138,306 136,322Q136,326 132,326H104Q100,326 100,322Z", DARKWOOD, 3)
    out += limb("M58,184Q36,210 36,240", COAT, 24)
    out += solid(ellipse(35, 252, 13, 13), SKIN, 3)
    if arm == "up":
        out += limb("M132,184Q158,196 164,168", COAT, 24)
        out += solid(ellipse(166, 156, 13, 13), SKIN, 3)
    else:
        out += limb("M132,184Q154,210 154,240", COAT, 24)
        out += solid(ellipse(155, 252, 13, 13), SKIN, 3)
    coat = "M58,172Q95,158 132,172Q146,230 148,282Q95,298 42,282Q44,230 58,172Z"
    out += solid(coat, COAT, 8)
    out += solid("M74,166Q95,160 116,166L95,212Z", TEAL, 3)
    out += stroke("M95,212V290") + stroke("M74,166L95,212L116,166")
    out += flat(ellipse(103, 232, 4), OUTLINE) + flat(ellipse(103, 258, 4), OUTLINE)
    out += solid(box(110, 226, 30, 28, 6), COAT, 3, 3) + paw_print(125, 240, 9, CORAL)
    out += stroke("M70,168Q66,206 82,222", OUTLINE, 7) + stroke("M120,168Q128,200 122,208", OUTLINE, 7)
    out += stroke("M70,168Q66,206 82,222", CORAL, 3) + stroke("M120,168Q128,200 122,208", CORAL, 3)
    out += solid(ellipse(83, 229, 10, 10), YELLOW, 3, glint=(80, 226, 3, 3))
    return out


def doctor(eyes="open", mouth="smile", arm="down"):
    """The whole doctor in a frame of 190 by 330."""
    return doctor_body(arm) + doctor_head(eyes, mouth)


def child_face(cx, cy, s):
    """A child's face of radius s: the picture a player has before choosing a photograph."""
    piece = solid(ellipse(0, 0, 58, 56), SKIN, 5, 6)
    piece += solid("M-58,-2C-62,-70 62,-70 58,-2C46,-30 22,-36 -4,-34C-30,-34 -48,-26 -58,-2Z", HAIR, 4, 6)
    piece += eye(-22, 6, 9, 12) + eye(22, 6, 9, 12) + cheek(-38, 26) + cheek(38, 26)
    piece += stroke("M-18,30Q0,46 18,30", OUTLINE, 6)
    return f'<g transform="translate({n(cx)},{n(cy)}) scale({n(s / 62)})">{piece}</g>'


def doctor_suit():
    """The coat without a head, in a frame of 64 by 96: a face is laid over its collar."""
    out = limb("M24,66V84", TEAL, 9) + limb("M40,66V84", TEAL, 9)
    out += solid(ellipse(22, 89, 10, 5), DARKWOOD, 2, 3) + solid(ellipse(42, 89, 10, 5), DARKWOOD, 2, 3)
    out += limb("M18,14Q8,30 9,44", COAT, 8) + limb("M46,14Q56,30 55,44", COAT, 8)
    out += solid(ellipse(9, 51, 5.5), SKIN, 2, 3) + solid(ellipse(55, 51, 5.5), SKIN, 2, 3)
    out += solid("M18,8Q32,0 46,8Q54,40 54,72Q32,80 10,72Q10,40 18,8Z", COAT, 5)
    out += solid("M23,5Q32,1 41,5L32,24Z", TEAL, 2, 3) + stroke("M32,24V74", OUTLINE, 3)
    out += paw_print(43, 46, 7, CORAL)
    return out
