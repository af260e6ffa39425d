"""The pictures of the four arcade games: their screens, hints, buttons and everything that moves.

A ball, a shot and a drifting thing are hit by their corners or by the pixel under the pointer, so what
has to be hit fills its cell.
"""

from animals import dog
from arcade_sprites import VIOLET, bug, butterfly, drop, foe_drop, germ, play_bubble
from cat import cat
from counters import (
    bubble_counter, carrot_clock, germ_counter, heart_counter, lives_counter, replay_button, small_buttons, star_counter,
)
from furniture import carrot, cloud, flower, shadow, tree, wall
from items import antiseptic, arrow, cog_button, dog_face, grapes, hand, no_cross, tick
from rabbit import rabbit
from shapes import (
    CORAL, CREAM, DARKWOOD, GREEN, ORANGE, OUTLINE, PINK, SKY, TEAL, WHITE, WOOD, YELLOW, box, ellipse, flat,
    heart, light, limb, move, n, shade, shut_eye, solid, sparkle, star, stroke,
)
from turtle import turtle, turtle_face

TILE, PITCH, TILES_A_ROW = 126, 130, 3
BOARD_LEFT, BOARD_TOP = 205, 66


# --- the tiles ------------------------------------------------------------------------------------


def tile_picture():
    """The whole picture, 390 by 390: a rabbit in the grass under the sun."""
    out = flat("M0,0H390V390H0Z", SKY)
    out += solid(ellipse(58, 60, 38), YELLOW, 5) + shut_eye(46, 58, 7, up=True) + shut_eye(70, 58, 7, up=True) + stroke("M46,70Q58,80 70,70", OUTLINE, 3)
    out += cloud(316, 60, 0.62)
    out += flat("M0,268Q120,214 240,256T390,240V390H0Z", GREEN) + stroke("M0,268Q120,214 240,256T390,240", OUTLINE)
    out += move(rabbit("happy", "well"), 68, 62)
    out += flower(54, 318, PINK, 1.3) + flower(334, 300, YELLOW, 1.4) + carrot(70, 230, 0.9, 30)
    return out + flower(196, 372, WHITE, 1.1) + grapes(330, 196, 1.1)


# The numbers 1 to 8 as strokes in a box of 10 by 14.
DIGITS = (
    "M2,3L6,0V14", "M1,3Q1,0 5,0T9,4Q9,7 1,14H9", "M1,1Q9,-2 9,3.5T4,7Q10,7 9,11T1,13", "M7,14V0L0,10H10",
    "M9,0H2L1,6Q9,4 9,9.5T1,13", "M8,0Q1,3 1,9A4,4.5 0 1 0 9,9.5A4,4 0 0 0 1,9", "M1,0H9L4,14",
    "M5,6.5A3.2,3.2 0 1 1 5,0A3.2,3.2 0 1 1 5,6.5A4,3.8 0 1 1 5,14A4,3.8 0 1 1 5,6.5",
)  # fmt: skip


def tile(number):
    """The piece of the picture that tile 1 to 8 carries, as a little cushion with its number on it."""
    x, y = (number - 1) % TILES_A_ROW * PITCH, (number - 1) // TILES_A_ROW * PITCH
    inside = move(tile_picture(), -x - 2, -y - 2)
    out = solid(box(3, 3, TILE - 6, TILE - 6, 12), CREAM, 0, 5, inside=inside)
    return out + solid(ellipse(22, 22, 14), CREAM, 0, 3) + move(stroke(DIGITS[number - 1], OUTLINE, 3), 17, 15)


def tile_sheet(sheet):
    for number in range(1, 9):
        sheet.add(f"tile{number}", tile(number))
    return sheet


def square_room():
    out = wall(light(TEAL, 0.5), "stars")
    size = PITCH * TILES_A_ROW
    out += solid(box(BOARD_LEFT - 22, BOARD_TOP - 20, size + 40, size + 40, 24), WOOD, 9)
    out += flat(box(BOARD_LEFT - 6, BOARD_TOP - 4, size + 8, size + 8, 12), shade(WOOD, 0.45))
    out += move(tile_picture(), BOARD_LEFT, BOARD_TOP) + flat(box(BOARD_LEFT - 1, BOARD_TOP - 1, size + 2, size + 2, 4), CREAM, 0.62)
    for edge in (TILE + 2, TILE + PITCH + 2):
        out += stroke(f"M{BOARD_LEFT + edge},{BOARD_TOP}v{size}M{BOARD_LEFT},{BOARD_TOP + edge}h{size}", shade(WOOD, 0.3), 4)
    out += shadow(94, 546, 70, 9) + move(rabbit("sad", "drunk"), -26, 264, size=0.78, about=(120, 284))
    out += shadow(706, 566, 76, 9) + limb("M664,520L652,560", DARKWOOD, 9) + limb("M748,520L760,560", DARKWOOD, 9)
    return out + solid(box(624, 372, 164, 164, 12), WOOD, 6) + move(tile_picture(), 633, 381, size=146 / 390)


# --- germs and spray ------------------------------------------------------------------------------


def germ_sheet(sheet):
    for number, colour in enumerate((GREEN, VIOLET, ORANGE), 1):
        sheet.add(f"germ{number}a", germ(colour))
        sheet.add(f"germ{number}b", move(germ(colour, 1), 0, -2))
    return sheet


def spray_sheet(sheet):
    """The bottle that the player moves: its nozzle is at the left, where the drops come out."""
    sheet.add("spray", antiseptic(28, 33, 0.86))
    return sheet


def drop_sheet(sheet):
    sheet.add("drop", drop(0, 0))
    sheet.add("splash", sparkle(11, 15, 11, WHITE))
    sheet.add("foe", foe_drop())
    return sheet


def shooter_room():
    out = flat("M0,0H800V600H0Z", light(PINK, 0.35))
    for row in range(7):
        for col in range(8):
            out += flat(ellipse(col * 110 + row % 2 * 55, row * 92 + 20, 26, 22), light(PINK, 0.55))
    out += flat("M-10,470Q200,420 400,452T810,440V610H-10Z", light(GREEN, 0.35)) + stroke("M-10,470Q200,420 400,452T810,440", OUTLINE, 4)
    for x in range(20, 800, 46):
        out += stroke(f"M{x},{506 + x * 7 % 60}l6,-16", shade(GREEN, 0.3), 4)
    for x, y, colour, size in ((46, 498, YELLOW, 0.8), (132, 484, WHITE, 0.7), (236, 474, PINK, 0.8), (342, 484, YELLOW, 0.7), (446, 496, CORAL, 0.8), (522, 500, WHITE, 0.7), (772, 490, PINK, 0.7)):
        out += flower(x, y, colour, size)
    return out + shadow(660, 470, 84, 10) + move(dog("sad", "cut"), 540, 182)


# --- mud and bubble -------------------------------------------------------------------------------


def mud_lump(colour, mood):
    """A lump of mud of 90 by 70, full to the edges."""
    out = solid(box(1, 1, 88, 68, 16), colour, 6, 3, glint=(22, 14, 12, 4))
    out += flat(ellipse(32, 30, 8, 9), WHITE) + flat(ellipse(58, 30, 8, 9), WHITE) + flat(ellipse(34, 32, 4), OUTLINE) + flat(ellipse(56, 32, 4), OUTLINE)
    mouth = ("M34,51H56", "M34,52Q45,44 56,52", "M34,48Q45,56 56,48", "M34,51L40,47L46,52L52,47L57,51", "M41,50A5,4 0 1 0 50,50A5,4 0 1 0 41,50", "M35,50Q45,52 55,47")[mood]
    return out + stroke(mouth, OUTLINE, 3.5)


def mud_sheet(sheet):
    colours = (DARKWOOD, "#99603a", "#8a6a4a", "#a8743a", "#7d5238", "#94703f")
    for number, colour in enumerate(colours, 1):
        sheet.add(f"mud{number}", mud_lump(colour, number - 1))
    return sheet


def foam(cx, cy, r):
    """A puff of the foam that stands still."""
    return solid(ellipse(cx, cy, r), WHITE, 4, 3) + stroke(f"M{n(cx - r * 0.45)},{n(cy - r * 0.3)}Q{n(cx - r * 0.2)},{n(cy - r * 0.55)} {n(cx + r * 0.1)},{n(cy - r * 0.55)}", light(SKY, 0.2), 3)


def bubble_sheet(sheet):
    sheet.add("bubble", play_bubble(30, 30, 28))
    return sheet


def paddle_sheet(sheet):
    """The bar of soap that sends the bubble up: for a calm game, as a rule, and for a quick one."""
    for name, width in (("calm", 300), ("plain", 220), ("quick", 190)):
        if sheet.cells:
            sheet.below(width, 38, 1)
        out = solid(box(2, 2, width - 4, 34, 12), PINK, 6, 4, glint=(40, 9, 26, 3)) + stroke(box(20, 10, width - 40, 18, 9), shade(PINK, 0.3), 3)
        sheet.add(name, out + heart(width / 2, 18, 7))
    return sheet


def brick_room():
    out = flat("M0,0H800V600H0Z", light(SKY, 0.3))
    for y in range(0, 480, 60):
        out += stroke(f"M0,{y}H800", light(SKY, 0.7), 4)
        for x in range(y // 60 % 2 * 50, 840, 100):
            out += stroke(f"M{x},{y}V{y + 60}", light(SKY, 0.7), 4)
    out += flat("M0,500H800V600H0Z", light(TEAL, 0.35)) + stroke("M0,500H800", OUTLINE, 4)
    out += shadow(560, 500, 190, 10) + move(turtle("sad", "muddy"), 430, 148, size=0.9)
    out += solid("M380,356H742Q752,356 748,376L730,452Q722,486 690,486H432Q400,486 392,452L372,376Q368,356 380,356Z", WHITE, 9)
    out += stroke("M372,376H748", shade(WHITE, 0.2), 4)
    for x, y, r in ((404, 350, 22), (440, 342, 26), (484, 350, 22), (640, 350, 24), (684, 344, 27), (724, 352, 20), (600, 354, 18), (528, 354, 18)):
        out += foam(x, y, r)
    return out


# --- fleas and butterflies ------------------------------------------------------------------------

FLEA_COLOURS = ("#8a5a44", "#7a4a3a", "#a5653f", "#6b4a5a", "#94704a", "#7d3f3f")


def bug_sheet(sheet):
    for number, colour in enumerate(FLEA_COLOURS, 1):
        sheet.add(f"bug{number}a", bug(colour))
        sheet.add(f"bug{number}b", bug(colour, -6))
    return sheet


def butterfly_sheet(sheet):
    sheet.add("butterfly1", butterfly())
    sheet.add("butterfly2", butterfly(0.8))
    return sheet


def bobble_room():
    out = flat("M0,0H800V420H0Z", "url(#sky)") + cloud(170, 96, 0.8) + cloud(580, 130, 0.7) + cloud(400, 60, 0.5)
    out += flat("M0,360Q200,300 420,346T800,320V600H0Z", light(GREEN, 0.35)) + stroke("M0,360Q200,300 420,346T800,320", OUTLINE)
    out += tree(56, 420, 0.95) + tree(752, 414, 0.9)
    out += flat("M0,470Q300,420 800,474V600H0Z", GREEN) + stroke("M0,470Q300,420 800,474", OUTLINE)
    out += shadow(400, 566, 100, 10) + move(cat("sad", "plain"), 280, 272)
    for x, y, c in ((90, 540, PINK), (180, 500, YELLOW), (250, 570, WHITE), (560, 520, CORAL), (640, 570, PINK), (730, 520, YELLOW)):
        out += flower(x, y, c, 0.95)
    return out


# --- hints ----------------------------------------------------------------------------------------


def hint(sheet, sign):
    """A board of 440 by 310: the hint above, room for the tick below."""
    out = solid(box(8, 8, 424, 294, 34), CREAM, 8) + stroke(box(24, 24, 392, 262, 24), YELLOW, 5)
    sheet.add("panel", out + sign)
    return sheet


def falls(x, y, s=1.0):
    """A drop on its way, with the lines of its haste above it."""
    return move(drop(0, 0) + stroke("M4,-8V-16M11,-12V-24M18,-8V-16", OUTLINE, 3), x, y, size=s)


def square_hint():
    small = solid(box(-5, -5, 190, 190, 12), WOOD, 0) + move(tile_picture(), 0, 0, size=180 / 390)
    piece = move(tile(5), 0, 0, size=0.72)
    return move(piece, 44, 62) + arrow(158, 108, 0.9, fill=YELLOW) + hand(92, 150, 1.5) + move(small, 206, 42) + cog_button(74, 238, 32, GREEN, tick(74, 235, 0.75)) + star(132, 236, 20) + star(182, 240, 14)


def shooter_hint():
    out = move(germ(GREEN), 48, 36) + falls(88, 112, 0.9).replace("M4,-8V-16M11,-12V-24M18,-8V-16", "M4,38V46M11,42V54M18,38V46") + antiseptic(102, 196, 0.95)
    out += hand(160, 214, 1.3) + cog_button(150, 62, 24, GREEN, tick(150, 60, 0.6)) + stroke("M196,44V240", YELLOW, 5)
    out += move(germ(VIOLET), 210, 36) + move(foe_drop() + stroke("M4,-8V-16M11,-12V-24M18,-8V-16", OUTLINE, 3), 231, 126) + antiseptic(238, 212, 0.95) + cog_button(312, 62, 24, CORAL, no_cross(312, 60, 0.58))
    return out + arrow(284, 206, 0.6, fill=YELLOW) + dog_face(370, 118, 1.0) + sparkle(396, 62, 13, YELLOW)


def brick_hint():
    mud = solid(box(1, 1, 48, 48, 9), DARKWOOD, 5, 3) + flat(ellipse(18, 22, 4), WHITE) + flat(ellipse(32, 22, 4), WHITE)
    out = move(mud, 46, 34) + move(mud, 98, 34) + play_bubble(166, 118, 20) + stroke("M156,142L146,168M140,104L124,94", OUTLINE, 3)
    out += move(solid(box(0, 0, 140, 34, 12), PINK, 5, glint=(36, 8, 22, 3)) + heart(70, 17, 7), 90, 190)
    out += arrow(58, 206, 0.75, turn=180, fill=YELLOW) + arrow(264, 206, 0.75, fill=YELLOW) + hand(112, 244, 1.3)
    return out + arrow(262, 92, 0.9, fill=YELLOW) + turtle_face(346, 98, 1.3) + sparkle(392, 46, 13)


def bobble_hint():
    out = move(bug(FLEA_COLOURS[0]), 46, 52, size=1.3) + hand(118, 138, 1.6) + cog_button(160, 92, 28, GREEN, tick(160, 89, 0.7))
    out += stroke("M212,40V240", YELLOW, 5) + star(70, 208, 18) + star(112, 216, 18) + star(154, 208, 18)
    out += move(butterfly(), 242, 52, size=1.3) + hand(318, 138, 1.6) + cog_button(370, 92, 28, CORAL, no_cross(370, 89, 0.7))
    return out + heart(258, 210, 17) + stroke("M234,232L282,188", OUTLINE, 9) + stroke("M234,232L282,188", WHITE, 4)


def arcade_sheets(make_sheet, add_states):
    """The pictures by name; `make_sheet(w, h, columns)` gives an empty sheet."""

    def room(draw):
        def made():
            sheet = make_sheet(800, 600, 1)
            sheet.add("room", draw())
            return sheet

        return made

    def cells(w, h, columns, fill):
        return lambda: fill(make_sheet(w, h, columns))

    def board(sign):
        return lambda: hint(make_sheet(440, 310, 1), sign())

    shared = "Info/GlobalReferences/arcade/"
    return {
        "Info/squarescreen/room": room(square_room),
        "Info/squarescreen/hint": board(square_hint),
        "Info/squarescreen/tile": cells(TILE, TILE, 4, tile_sheet),
        "Info/shooterscreen/room": room(shooter_room),
        "Info/shooterscreen/hint": board(shooter_hint),
        "Info/shooterscreen/germ": cells(64, 60, 2, germ_sheet),
        "Info/shooterscreen/spray": cells(60, 64, 1, spray_sheet),
        "Info/shooterscreen/drop": cells(22, 30, 2, drop_sheet),
        "Info/brickscreen/room": room(brick_room),
        "Info/brickscreen/hint": board(brick_hint),
        "Info/brickscreen/mud": cells(90, 70, 3, mud_sheet),
        "Info/brickscreen/bubble": cells(60, 60, 1, bubble_sheet),
        "Info/brickscreen/paddle": cells(300, 38, 1, paddle_sheet),
        "Info/bobblescreen/room": room(bobble_room),
        "Info/bobblescreen/hint": board(bobble_hint),
        "Info/bobblescreen/bug": cells(64, 60, 2, bug_sheet),
        "Info/bobblescreen/butterfly": cells(64, 60, 2, butterfly_sheet),
        shared + "small": lambda: small_buttons(make_sheet(84, 92, 3), add_states),
        shared + "replay": lambda: replay_button(make_sheet(184, 184, 3), add_states),
        shared + "stars": cells(312, 36, 2, star_counter),
        shared + "bubbles": cells(132, 48, 3, bubble_counter),
        shared + "germs": cells(470, 44, 2, germ_counter),
        shared + "hearts": cells(140, 36, 2, heart_counter),
        "Info/shooterscreen/lives": cells(76, 36, 3, lives_counter),
        "Info/squarescreen/clock": cells(84, 250, 7, carrot_clock),
    }
