"""Every picture of the game: its size and the cells that lie in it.

A sheet is a transparent picture with cells of sprites; a screen is one opaque cell of 800 by 600.
`SHEETS` maps the path of the made picture, without its ending, to the function that gives it.
"""

from functools import partial

from animals import dog, dog_paw
from arcade import arcade_sheets
from cat import cat, cat_face, flea
from furniture import *
from items import *
from people import child_face, doctor, doctor_eyes, doctor_suit
from rabbit import rabbit, rabbit_face
from shapes import *
from turtle import turtle, turtle_face


class Sheet:
    """A picture of `columns` cells a row, each `w` by `h`, in the order in which they are added."""

    def __init__(self, w, h, columns):
        self.w, self.h, self.columns = w, h, columns
        self.cells = []
        self.count = self.top = 0

    def add(self, name, piece):
        x, y = self.count % self.columns * self.w, self.top + self.count // self.columns * self.h
        self.cells.append((name, x, y, self.w, self.h, piece))
        self.count += 1

    def below(self, w, h, columns):
        """The cells added from here on have another size and begin below the last row."""
        self.top = self.size()[1]
        self.w, self.h, self.columns, self.count = w, h, columns, 0

    def size(self):
        return max(x + w for _, x, _, w, _, _ in self.cells), max(y + h for _, _, y, _, h, _ in self.cells)

    def rectangles(self):
        return [cell[:5] for cell in self.cells]

    def svg(self):
        width, height = self.size()
        out = [
            f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" viewBox="0 0 {width} {height}">',
            f"<defs>{DEFINITIONS}</defs>",
        ]
        for _, x, y, w, h, piece in self.cells:
            out.append(f'<svg x="{x}" y="{y}" width="{w}" height="{h}" overflow="hidden">{piece}</svg>')
        out.append("</svg>\n")
        return "\n".join(out)


def screen(piece):
    sheet = Sheet(800, 600, 1)
    sheet.add("room", piece)
    return sheet


# --- screens --------------------------------------------------------------------------------------


def intro():
    out = flat("M0,0H800V430H0Z", "url(#sky)")
    for i in range(12):
        out += move(flat(poly((0, 0), (520, -26), (520, 26)), "#fff3b8", 0.4), 92, 214, turn=i * 30 + 8)
    out += solid(ellipse(92, 214, 46), YELLOW, 7, glint=(74, 192, 13, 8))
    out += shut_eye(77, 212, 8, up=True) + shut_eye(107, 212, 8, up=True) + stroke("M78,227Q92,241 106,227")
    out += cheek(64, 227, 8, 5) + cheek(120, 227, 8, 5)
    out += cloud(690, 196, 0.72) + cloud(214, 168, 0.42)
    out += flat("M0,372Q180,300 400,350T800,330V600H0Z", light(GREEN, 0.35))
    out += stroke("M0,372Q180,300 400,350T800,330", OUTLINE)
    out += tree(22, 432, 0.95) + tree(796, 430, 1.05)
    # The house.
    out += solid(box(170, 258, 460, 190, 10), CREAM, 10)
    for x in range(196, 620, 64):
        out += flat(box(x, 400, 40, 16, 3), PEACH) + flat(box(x - 30, 424, 40, 16, 3), PEACH)
    tiles = ""
    for row, y in enumerate((198, 224, 250)):
        for x in range(132 + (row % 2) * 20, 680, 40):
            tiles += stroke(f"M{x},{y}Q{x + 16},{y + 14} {x + 32},{y}", shade(CORAL, 0.4), 3)
    out += solid("M140,268L214,176H586L660,268Q664,278 652,278H148Q136,278 140,268Z", CORAL, 9, inside=tiles)
    out += solid(ellipse(400, 226, 44), WHITE, 6) + paw_print(400, 222, 30, CORAL)
    for x in (206, 510):
        out += window(x, 306, 84, 78) + solid(box(x - 12, 394, 108, 22, 6), DARKWOOD, 3)
        for i, colour in enumerate((PINK, YELLOW, CORAL, WHITE)):
            out += flower(x + 6 + i * 24, 398, colour, 0.62)
    out += flat("M0,440Q400,404 800,440V600H0Z", GREEN) + stroke("M0,440Q400,404 800,440", OUTLINE)
    out += solid("M346,424H454L540,604H260Z", PEACH, 0)
    out += solid(box(340, 300, 120, 130, 8), CREAM, 4) + solid("M352,430V332Q352,310 374,310H426Q448,310 448,332V430Z", TEAL, 6)
    out += solid(ellipse(400, 350, 22), "#ffe9a6", 3) + solid(ellipse(436, 386, 6), YELLOW, 0, 3)
    for x, y, c in ((40, 520, PINK), (96, 566, YELLOW), (214, 486, WHITE), (596, 492, PINK), (700, 508, WHITE), (768, 556, YELLOW), (240, 572, CORAL), (566, 574, CORAL)):
        out += flower(x, y, c, 0.95)
    width = lettering_width("PAW CLINIC", 1.0)
    out += lettering("PAW CLINIC", 400 - width / 2, 44, 1.0, (CORAL, ORANGE, YELLOW, GREEN, TEAL, PINK))
    out += shadow(104, 566, 90, 12)
    out += move(dog("happy", "bandaid", 1), -18, 280, size=0.82, about=(120, 284))
    out += shadow(694, 574, 72, 11) + move(doctor("open", "smile", "up"), 600, 248)
    return screen(out)


def hall():
    out = wall(PEACH, "dots")
    out += bunting(10, 436, 14, (CORAL, YELLOW, TEAL, GREEN, PINK))
    out += stroke("M496,-4V62M568,-4V62", OUTLINE, 9) + stroke("M496,-4V62M568,-4V62", DARKWOOD, 3)
    out += rug(300, 484, 250, 17, CORAL, YELLOW)
    for x in (84, 229, 374):
        out += shadow(x, 461, 66, 5)
    out += shadow(540, 476, 92, 9) + desk(468, 370, 136, 106, WOOD)
    out += bell(588, 363)
    out += shadow(700, 482, 66, 8)
    return screen(out)


def hall2():
    out = wall(light(YELLOW, 0.45), "hearts")
    out += bunting(136, 456, 30, (TEAL, PINK, YELLOW, CORAL, GREEN))
    out += poster(50, 84, 74, 86, cross_sign(87, 130, 20), WHITE)
    out += window(474, 84, 104, 104) + curtains(474, 84, 104, 104, CORAL)
    out += clock(716, 76, 40)
    out += rug(300, 484, 250, 17, TEAL, CREAM)
    for x in (84, 229, 374, 519):
        out += shadow(x, 461, 66, 5)
    out += shadow(700, 482, 66, 8)
    return screen(out)


def elevator():
    """The cabin: the board with the two buttons at the left, its double door in the middle."""
    out = flat("M0,0H800V600H0Z", light(LAVENDER, 0.25))
    for x in range(0, 840, 100):
        out += flat(box(x + 6, 40, 88, 400, 10), light(LAVENDER, 0.5)) + stroke(f"M{x + 18},58V420", WHITE, 4)
    out += flat("M0,0H800V40H0Z", shade(LAVENDER, 0.2)) + stroke("M0,40H800", OUTLINE, 4)
    for x in (170, 430, 690):
        out += sunbeam(((x - 50, 40), (x + 50, 40), (x + 120, 420), (x - 120, 420))) + solid(box(x - 56, 28, 112, 18, 8), YELLOW, 0, 3)
    out += flat("M0,440H800V600H0Z", CORAL) + stroke("M0,440H800", OUTLINE, 4)
    for row in range(4):
        for col in range(11):
            if (row + col) % 2:
                out += flat(box(col * 76 - 20, 444 + row * 40, 76, 40, 0), light(CORAL, 0.3))
    out += solid(box(282, 78, 292, 364, 14), CREAM, 8)
    out += solid(box(306, 136, 244, 306, 4), shade(LAVENDER, 0.4), 0)
    for x in (306, 428):
        out += solid(box(x, 136, 122, 306, 4), shade(LAVENDER, 0.12), 6) + stroke(f"M{x + 24},160V416", light(LAVENDER, 0.7), 6)
    out += solid(box(352, 90, 152, 36, 16), OUTLINE, 0, 0)
    out += arrow(388, 108, 0.62, turn=-90, fill=YELLOW) + arrow(468, 108, 0.62, turn=90, fill=YELLOW)
    out += stroke("M250,404H274M582,404H780", OUTLINE, 15) + stroke("M250,404H274M582,404H780", WOOD, 8)
    out += solid(box(34, 66, 216, 414, 26), WOOD, 9) + stroke(box(46, 78, 192, 390, 18), shade(WOOD, 0.3), 4)
    return screen(out + shadow(700, 482, 66, 8))


def lift_button(stop):
    """A round button with the patients that live at this stop of the elevator, and the stop's number in dots."""
    sheet = Sheet(132, 132, 2)
    faces = (dog_face(66, 54, 0.95), cat_face(44, 57, 0.72) + rabbit_face(88, 58, 0.72), turtle_face(66, 54, 0.95))[stop - 1]
    dots = "".join(solid(ellipse(66 + (i - (stop - 1) / 2) * 20, 98, 7), WHITE, 0, 3) for i in range(stop))
    piece = cog_button(66, 64, 57, (YELLOW, GREEN, PINK)[stop - 1], faces + dots)
    sheet.add("rest", piece)
    sheet.add("glow", glowing(piece))
    return sheet


def floor2hall():
    """The hall upstairs: mint, with a view of the pond from which its patient came."""
    out = wall(MINT, "hearts")
    out += bunting(120, 470, 18, (CORAL, YELLOW, PINK, TEAL, ORANGE))
    pond = flat(ellipse(370, 214, 70, 18), TEAL) + flat(ellipse(352, 210, 16, 4), light(TEAL, 0.5)) + flat(ellipse(398, 216, 10, 3), light(TEAL, 0.5))
    out += window(316, 92, 124, 112, pond) + curtains(316, 92, 124, 112, YELLOW)
    out += sunbeam(((316, 214), (440, 214), (520, 458), (330, 458)))
    out += poster(50, 96, 74, 86, cross_sign(87, 142, 20), WHITE) + poster(186, 92, 86, 96, flower_card(229, 140), CREAM)
    out += lamp(716, 40)
    out += rug(300, 484, 250, 17, PINK, CREAM)
    for x in (84, 229):
        out += shadow(x, 461, 66, 5)
    out += shadow(340, 482, 34, 6) + plant(340, 484, 0.95)
    out += bench(408, 408, 166) + shadow(700, 482, 66, 8)
    return screen(out)


def flower_card(cx, cy):
    return flower(cx - 16, cy + 34, PINK, 0.9) + flower(cx + 16, cy + 34, YELLOW, 0.9) + flower(cx, cy + 24, CORAL, 1.1)


def bench(x, y, w):
    """A bench for those who wait, its seat at y."""
    out = shadow(x + w / 2, y + 70, w / 2, 7)
    for leg in (x + 20, x + w - 20):
        out += limb(f"M{leg},{y + 12}V{y + 62}", DARKWOOD, 10)
    for post in (x + 34, x + w - 34):
        out += limb(f"M{post},{y - 34}V{y + 4}", DARKWOOD, 8)
    return out + solid(box(x + 6, y - 56, w - 12, 34, 12), WOOD, 5) + solid(box(x, y, w, 24, 10), CORAL, 5)


def turtleroom():
    out = wall(light(PINK, 0.3), "stars")
    out += window(36, 80, 116, 112) + curtains(36, 80, 116, 112, GREEN)
    out += sunbeam(((36, 214), (152, 214), (330, 458), (120, 458)))
    out += poster(204, 60, 88, 100, fish(248, 110, 1.0), MINT) + poster(470, 86, 78, 96, heart(509, 136, 20), CREAM)
    out += lamp(716, 40)
    out += rug(340, 484, 250, 17, TEAL, CREAM)
    out += shadow(84, 461, 66, 5) + shadow(346, 480, 160, 9)
    out += table(194, 390, 304, 92, YELLOW)
    out += shadow(176, 482, 26, 5) + plant(176, 482, 0.6) + shadow(548, 484, 38, 6) + bowl(548, 472)
    out += shadow(700, 482, 66, 8)
    return screen(out)


def catroom():
    out = wall(LAVENDER, "dots")
    out += window(36, 80, 116, 112) + curtains(36, 80, 116, 112, PINK)
    out += sunbeam(((36, 214), (152, 214), (330, 458), (120, 458)))
    out += poster(210, 56, 88, 100, fish(254, 106, 1.0), SKY) + poster(470, 86, 78, 96, heart(509, 136, 20), CREAM)
    out += lamp(716, 40)
    out += rug(340, 484, 250, 17, GREEN, CREAM)
    out += shadow(84, 461, 66, 5) + shadow(346, 480, 160, 9)
    out += table(194, 390, 304, 92, TEAL)
    out += wool(176, 464, 20) + shadow(176, 482, 28, 5) + shadow(548, 484, 38, 6) + bowl(548, 472)
    out += shadow(700, 482, 66, 8)
    return screen(out)


def rabbitroom():
    out = wall(light(GREEN, 0.45), "stars")
    out += window(36, 80, 116, 112) + curtains(36, 80, 116, 112, ORANGE)
    out += sunbeam(((36, 214), (152, 214), (330, 458), (120, 458)))
    out += poster(206, 52, 84, 104, carrot(248, 104, 1.0), YELLOW) + poster(470, 86, 78, 96, heart(509, 136, 20), CREAM)
    out += lamp(716, 40)
    out += rug(340, 484, 250, 17, ORANGE, CREAM)
    out += shadow(84, 461, 66, 5) + shadow(346, 480, 160, 9)
    out += table(194, 390, 304, 92, PINK)
    out += shadow(176, 482, 26, 5) + plant(176, 482, 0.6) + shadow(548, 484, 38, 6) + bowl(548, 472) + carrot(540, 448, 0.5, 60)
    out += shadow(700, 482, 66, 8)
    return screen(out)


def dogroom():
    out = wall(SKY, "hearts")
    out += window(36, 80, 116, 112) + curtains(36, 80, 116, 112, YELLOW)
    out += sunbeam(((36, 214), (152, 214), (330, 458), (120, 458)))
    out += poster(200, 60, 84, 104, bone(242, 114, 0.84, -30), PINK)
    out += poster(446, 190, 78, 96, heart(485, 240, 20), CREAM)
    out += lamp(716, 40)
    out += rug(340, 484, 250, 17, TEAL, CREAM)
    out += shadow(84, 461, 66, 5) + shadow(346, 480, 160, 9)
    out += table(194, 390, 304, 92, CORAL)
    out += shadow(176, 482, 28, 5) + ball(176, 464, 20) + shadow(548, 484, 38, 6) + bowl(548, 472)
    out += shadow(700, 482, 66, 8)
    return screen(out)


def emptyroom():
    out = wall(MINT, "stars")
    out += poster(54, 16, 60, 66, cross_sign(84, 50, 19), YELLOW)
    out += shadow(84, 461, 66, 5) + rug(380, 484, 230, 16, GREEN, YELLOW)
    out += shelf(20, 196, 130)
    out += shadow(378, 474, 200, 9)
    out += cupboard(186, 36, 380, 438, WOOD)
    for y in (176, 300, 424):
        out += solid(box(202, y, 348, 16, 5), shade(WOOD, 0.1), 4)
    out += lamp(700, 30)
    out += shadow(700, 482, 66, 8)
    return screen(out)


def cross_sign(cx, cy, s=30):
    return solid(cross_path(cx, cy, s), CORAL, 4)


def bookscreen():
    out = wall(LAVENDER, "stars")
    out += solid(box(40, 30, 720, 470, 26), shade(CORAL, 0.1), 9)
    page = "M400,62C330,34 160,36 72,58V466C160,446 330,444 400,472Z"
    other = "M400,62C470,34 640,36 728,58V466C640,446 470,444 400,472Z"
    out += solid(page, CREAM, 0) + solid(other, CREAM, 0)
    out += flat("M340,49C364,52 386,56 400,62C414,56 436,52 460,49V455C436,460 414,464 400,472C386,464 364,460 340,455Z", "url(#gutter)") + stroke("M400,62V472")
    for dx in (7, 13):
        out += stroke(f"M{76},{462 + dx}C160,{443 + dx} 330,{441 + dx} 400,{468 + dx}C470,{441 + dx} 640,{443 + dx} 724,{462 + dx}", shade(CREAM, 0.3), 3)
    rows = (
        (dog("sad", "cut"), (antiseptic, bandaid), dog("joy", "bandaid", 1)),
        (cat("sad", "fleas"), (fleapowder, calamine, fleacollar), cat("joy", "collar", 1)),
        (rabbit("sad", "cold"), (water, grapes, antibiotic), rabbit("joy", "well")),
        (turtle("sad", "muddy"), (soap, water, bandaid), turtle("joy", "well")),
    )
    for row, (ill, cure, well) in enumerate(rows):
        y = 56 + row * 101
        if row:
            out += stroke(f"M204,{y}H366M434,{y}H570", shade(CREAM, 0.25), 3)
        out += move(ill, 98, y + 1, size=0.335)
        for tool, x in zip(cure, (250, 346, 454)):
            out += tool(x, y + 51, 0.66 if tool is fleacollar else 0.76)
            if x > 250:
                out += arrow(x - 48 if x < 400 else 400, y + 51, 0.4, fill=YELLOW)
        out += arrow(532 if len(cure) == 3 else 474, y + 51, 0.7, fill=YELLOW) + move(well, 590, y + 1, size=0.335) + heart(706, y + 32, 10, PINK)
    return screen(out)


# --- sprites --------------------------------------------------------------------------------------


def add_states(sheet, name, piece):
    """The three looks of a button: at rest, under the pointer, pressed."""
    sheet.add(name, piece)
    sheet.add(name + "-glow", glowing(piece))
    sheet.add(name + "-pressed", pressed(piece))


def intro_buttons():
    sheet = Sheet(184, 184, 3)
    start = cog_button(92, 92, 80, GREEN, triangle(92, 88, 1.5))
    add_states(sheet, "start", start)
    sheet.add("start-hop", move(start, 0, -4, size=1.03, about=(92, 92)))
    return sheet


def intro_small():
    sheet = Sheet(104, 104, 3)
    add_states(sheet, "fresh", cog_button(52, 52, 42, ORANGE, again(50, 48, 0.9)))
    add_states(sheet, "quit", cog_button(52, 52, 42, LAVENDER, moon(52, 49, 0.85)))
    return sheet


def yes_no():
    sheet = Sheet(124, 124, 3)
    add_states(sheet, "yes", cog_button(62, 62, 50, GREEN, tick(62, 58, 1.15)))
    add_states(sheet, "no", cog_button(62, 62, 50, CORAL, no_cross(62, 58, 1.15)))
    return sheet


def panel(sign):
    """A board of 440 by 310 on which yes and no stand, with a sign above them."""
    return solid(box(8, 8, 424, 294, 34), CREAM, 8) + stroke(box(24, 24, 392, 262, 24), YELLOW, 5) + sign


def exit_panel():
    sheet = Sheet(440, 310, 1)
    night = solid(box(54, 46, 190, 104, 18), "#5b6bb0", 5, inside=flat(ellipse(84, 74, 3), CREAM) + flat(ellipse(222, 66, 3), CREAM) + flat(ellipse(130, 62, 2), CREAM))
    sheet.add("panel", panel(night + moon(108, 98, 0.85) + house(190, 104, 1.1) + dog_face(304, 100, 1.05) + question(378, 90, 0.95)))
    return sheet


def fresh_panel():
    sheet = Sheet(440, 310, 1)
    sheet.add("panel", panel(dog_face(110, 100, 1.2) + cog_button(220, 98, 44, ORANGE, again(218, 94, 0.95)) + question(336, 92, 1.05)))
    return sheet


def door(colour, sign):
    sheet = Sheet(132, 234, 2)
    sheet.add("shut", door_leaf(colour, sign_plate(sign)))
    sheet.add("open", glowing(door_leaf(colour, sign_plate(sign), open_door=True), 0))
    return sheet


def lift_door():
    sheet = Sheet(132, 234, 2)
    sheet.add("shut", lift_leaf(LAVENDER))
    sheet.add("open", glowing(lift_leaf(LAVENDER, True), 0))
    return sheet


# The colour and the sign of each door. An object loads its whole picture, so each has its own.
DOORS = {
    "homedoor": lambda: door(CORAL, house(66, 84, 1.0)),
    "dogdoor": lambda: door(TEAL, dog_face(66, 84, 0.95)),
    "shelfdoor": lambda: door(ORANGE, bandaid(66, 84, 0.9)),
    "halldoor": lambda: door(YELLOW, hall_sign(66, 84)),
    "hall2door": lambda: door(YELLOW, hall_sign(66, 84)),
    "catdoor": lambda: door(GREEN, cat_face(66, 86, 0.95)),
    "rabbitdoor": lambda: door(PINK, rabbit_face(66, 90, 0.85)),
    "turtledoor": lambda: door(CORAL, turtle_face(66, 84, 0.9)),
    "hall3door": lambda: door(YELLOW, hall_sign(66, 84)),
    "liftdoor": lambda: lift_door(),
}


def hall_sign(cx, cy):
    """The hall's pictogram: an arrow back."""
    return arrow(cx - 2, cy, 0.95, turn=180, fill=TEAL)


def next_sign():
    """The board that leads to the second hall: cat, rabbit and an arrow, hanging on two cords."""
    sheet = Sheet(152, 132, 2)
    board = stroke("M40,4V34M112,4V34", OUTLINE, 9) + stroke("M40,4V34M112,4V34", DARKWOOD, 3)
    board += solid("M10,28H112L144,70L112,118H10Q4,118 4,112V34Q4,28 10,28Z", CREAM, 6) + stroke("M14,36H108L134,70L108,110H14Z", GREEN, 4)
    board += cat_face(40, 76, 0.68) + rabbit_face(80, 78, 0.68) + arrow(116, 72, 0.5, fill=YELLOW)
    sheet.add("sign", board)
    sheet.add("sign-glow", glowing(board))
    return sheet


def portrait(face):
    """A frame in the reception: empty, and with the face of the patient that is well."""
    sheet = Sheet(120, 120, 3)
    frame = stroke("M40,22L60,4L80,22", OUTLINE, 4) + solid(box(8, 18, 104, 96, 12), WOOD, 5)
    sheet.add("empty", frame + solid(box(22, 32, 76, 68, 6), CREAM, 0, 3) + paw_print(60, 66, 24, shade(CREAM, 0.14)))
    well = frame + solid(box(22, 32, 76, 68, 6), light(YELLOW, 0.2), 0, 3, inside=move(face, 60, 72)) + heart(98, 34, 13) + heart(22, 100, 9, PINK)
    sheet.add("well", well)
    sheet.add("well-glow", glowing(well))
    return sheet


def medicalbook():
    sheet = Sheet(96, 92, 3)
    lying = move(book(48, 46, 1.05), turn=-8, about=(48, 46))
    sheet.add("book", lying)
    sheet.add("book-glow", glowing(lying))
    sheet.add("book-sparkle", lying + sparkle(80, 14, 12, YELLOW) + sparkle(14, 74, 10, WHITE))
    return sheet


def doctor_sheet():
    sheet = Sheet(202, 342, 5)
    looks = (
        ("stand", doctor()), ("blink", doctor("shut")), ("talk1", doctor("open", "talk", "up")), ("talk2", doctor("open", "smile", "up")),
        ("praise1", doctor("joy", "talk", "up")), ("praise2", doctor("joy", "smile", "up")), ("oops1", doctor("open", "oh")), ("oops2", doctor("shut", "oh")),
    )  # fmt: skip
    for name, piece in looks:
        sheet.add(name, move(piece, 6, 6))
    sheet.add("stand-glow", glowing(move(doctor(), 6, 6), 0))
    sheet.below(232, 176, 4)
    for name, piece in bubble_contents():
        sheet.add("bubble-" + name, bubble(piece))
    return sheet


def doctor_eyes_sheet():
    """The doctor's shut eyes, which lie over the face for a moment."""
    sheet = Sheet(96, 44, 1)
    sheet.add("open", "")
    sheet.add("shut", move(doctor_eyes(), 6 - 53, 6 - 92))
    return sheet


def bubble_contents():
    """What the doctor says, in pictures."""

    def paw(cx, cy, kind):
        return move(dog_paw(0, 0, kind), cx, cy)

    def step(sign, tool, size=1.0):
        return sign + small_arrow(110, 78) + tool(164, 76, size)

    def helps(tool, sign, size=1.0):
        return tool(58, 76, size) + small_arrow(110, 78) + sign

    def cat_with(*signs):
        return cat_face(54, 82, 1.05) + "".join(signs)

    def turtle_with(*signs):
        return turtle_face(52, 82, 1.0) + "".join(signs)

    mud = "".join(flat(ellipse(x, y, r, r * 0.75), "#8f5c39") for x, y, r in ((40, 68, 8), (66, 68, 6), (72, 96, 7), (30, 94, 6)))
    bites = "".join(solid(ellipse(x, y, 4), CORAL, 0, 2) for x, y in ((40, 66), (68, 66), (34, 92), (76, 90)))
    lotion = "".join(flat(ellipse(x, y, 6, 4.5), PINK) for x, y in ((40, 66), (68, 66), (34, 92), (76, 90)))
    fleas = flea(24, 50, 0.9) + flea(86, 52, 0.9, 150) + flea(54, 118, 0.9)
    cold = rabbit_face(54, 82, 1.05) + solid(ellipse(54, 94, 9, 7), CORAL, 0, 3)
    return (
        ("book", book(88, 76, 1.25) + sparkle(142, 44, 13) + sparkle(152, 104, 10)),
        ("read", hand(54, 80, 1.3) + small_arrow(106, 76) + book(164, 76, 1.0)),
        ("patient", question(46, 70, 0.9) + dog_face(102, 76, 0.95) + bandaid(172, 76, 0.8)),
        ("shelf", hand(54, 84, 1.3) + antiseptic(112, 74, 1.0) + bandaid(172, 76, 0.85)),
        ("lift", arrow(76, 74, 1.1, turn=-90, fill=YELLOW) + arrow(146, 74, 1.1, turn=90, fill=YELLOW)),
        ("item", hand(52, 76, 1.25) + small_arrow(104, 76) + bandaid(166, 76, 0.95)),
        ("full", bandaid(34, 34, 0.5) + antiseptic(64, 32, 0.45) + soap(96, 36, 0.5) + grapes(34, 84, 0.55) + water(64, 86, 0.5) + fleapowder(96, 86, 0.5) + small_arrow(128, 76) + basket(176, 78, 0.62)),
        ("same", solid(box(34, 40, 76, 74, 18), light(WOOD, 0.25), 0) + bandaid(72, 77, 0.9) + cog_button(158, 76, 34, GREEN, tick(158, 73, 0.85))),
        ("retry", again(72, 74, 1.3, YELLOW) + question(154, 68, 1.0)),
        ("over", again(52, 74, 1.1, ORANGE) + dog_face(106, 76, 0.62) + cat_face(146, 78, 0.62) + rabbit_face(182, 80, 0.6)),
        ("dog", step(paw(52, 78, "cut"), antiseptic, 1.1)),
        ("dog-clean", step(paw(52, 78, "clean"), bandaid, 0.95)),
        ("dog-well", dog_face(80, 80, 1.15) + heart(146, 56, 17) + heart(172, 98, 12, PINK)),
        ("antiseptic", helps(antiseptic, paw(162, 78, "cut"), 1.15)),
        ("bandaid", helps(bandaid, paw(162, 78, "clean"), 0.9)),
        ("home", dog_face(62, 48, 0.75) + cat_face(154, 50, 0.75) + rabbit_face(62, 108, 0.7) + turtle_face(154, 106, 0.68)),
        ("soap", helps(soap, move(turtle_with(mud), 112, 0), 0.95)),
        ("fleapowder", helps(fleapowder, flea(164, 80, 2.0), 1.1)),
        ("fleacollar", helps(fleacollar, cat_face(164, 80, 1.0), 0.85)),
        ("water", helps(water, move(cold, 108, 0), 1.05)),
        ("grapes", helps(grapes, rabbit_face(164, 84, 1.0) + heart(192, 40, 10), 0.95)),
        ("antibiotic", helps(antibiotic, move(cold, 108, 0), 1.1)),
        ("calamine", helps(calamine, move(cat_with(bites), 110, 0), 1.15)),
        ("basket", soap(42, 66, 0.7) + bandaid(70, 92, 0.55) + small_arrow(112, 76) + basket(168, 78, 0.8)),
        ("cat", step(cat_with(fleas), fleapowder, 1.1)),
        ("cat-itchy", step(cat_with(bites), calamine, 1.1)),
        ("cat-lotion", step(cat_with(lotion, sparkle(92, 44, 10)), fleacollar, 0.85)),
        ("cat-well", cat_face(80, 82, 1.25) + heart(146, 56, 17) + heart(172, 98, 12, PINK)),
        ("rabbit", step(cold, water, 1.05)),
        ("rabbit-drunk", step(rabbit_face(54, 84, 1.05), grapes, 0.95)),
        ("rabbit-fed", step(rabbit_face(54, 84, 1.05) + sparkle(92, 44, 10), antibiotic, 1.1)),
        ("rabbit-well", rabbit_face(80, 86, 1.2) + heart(146, 56, 17) + heart(172, 98, 12, PINK)),
        ("turtle", step(turtle_with(mud), soap, 0.95)),
        ("turtle-parched", step(turtle_with(solid("M46,93H58V103Q52,111 46,103Z", PINK, 0, 2.5)), water, 1.05)),
        ("turtle-scratch", step(turtle_with(stroke("M34,70L42,62L48,68L56,58", CORAL, 4)), bandaid, 0.9)),
        ("turtle-well", turtle_face(80, 82, 1.3) + heart(146, 56, 17) + heart(172, 98, 12, PINK)),
    )


def dog_sheet():
    sheet = Sheet(256, 300, 5)
    sheet.add("sad1", dog("sad", "cut"))
    sheet.add("sad2", dog("sad", "cut", breath=3))
    sheet.add("sad3", dog("blink", "cut", breath=3))
    sheet.add("sad1-glow", glowing(dog("sad", "cut"), 2))
    sheet.add("sad2-glow", glowing(dog("sad", "cut", breath=3), 2))
    sheet.add("ow1", dog("ow", "cut", -1))
    sheet.add("ow2", move(dog("ow", "cut", -1, breath=3), 3, 0))
    sheet.add("hope1", dog("hope", "clean"))
    sheet.add("hope2", dog("hope", "clean", breath=3))
    sheet.add("hope3", dog("hopeblink", "clean", breath=3))
    sheet.add("hope1-glow", glowing(dog("hope", "clean"), 2))
    sheet.add("hope2-glow", glowing(dog("hope", "clean", breath=3), 2))
    sheet.add("ouch1", dog("ow", "clean", -1))
    sheet.add("ouch2", move(dog("ow", "clean", -1, breath=3), 3, 0))
    sheet.add("happy1", dog("happy", "bandaid", 1))
    sheet.add("happy2", dog("happy", "bandaid", 0, breath=2))
    sheet.add("happy3", dog("joy", "bandaid", 1, breath=2))
    sheet.add("happy1-glow", glowing(dog("happy", "bandaid", 1), 2))
    sheet.add("happy2-glow", glowing(dog("happy", "bandaid", 0, breath=2), 2))
    for i, (hop, tail) in enumerate(((0, 1), (14, 0), (22, 1), (14, 0), (0, 1))):
        hearts = heart(30, 60 - i * 7, 10 + i) + heart(222, 50 - i * 5, 8 + i, PINK) if i else ""
        sheet.add(f"jump{i + 1}", dog("joy", "bandaid", tail, hop=hop) + hearts)
    for name, paw in (("sad", "cut"), ("hope", "clean")):
        sheet.add(f"{name}-pet1", dog("hopeblink", paw, 0) + petted(1))
        sheet.add(f"{name}-pet2", dog("hopeblink", paw, 1, breath=2) + petted(2))
    return sheet


def petted(beat):
    """The hearts that fly while a patient is petted; they rise from beat 1 to 2."""
    if beat == 1:
        return heart(26, 70, 12)
    return heart(28, 46, 14) + heart(226, 60, 10, PINK)


def patient_sheet(draw, looks, well):
    """The cells of a patient that needs a step for each look; `draw(mood, look, **pose)` is the patient.

    Under the pointer a ring lies below the same frames: a sheet is the largest thing that a room loads.
    """
    sheet = Sheet(240, 296, 6)

    def add(name, piece):
        sheet.add(name, move(piece, -8, 0))

    for number, look in enumerate(looks):
        mood, blink = (("sad", "blink"), ("hope", "hopeblink"))[number > 0]
        name = f"step{number}"
        add(name + "-1", draw(mood, look, pose=0))
        add(name + "-2", draw(mood, look, pose=1, breath=3))
        add(name + "-3", draw(blink, look, pose=0, breath=3))
        add(name + "-ring", ring(draw(mood, look, pose=0)))
        add(name + "-ow1", draw("ow", look, pose=1))
        add(name + "-ow2", move(draw("ow", look, pose=0, breath=3), 3, 0))
    add("well-1", draw("happy", well, pose=0))
    add("well-2", draw("happy", well, pose=1, breath=2))
    add("well-3", draw("joy", well, pose=0, breath=2))
    add("well-ring", ring(draw("happy", well, pose=0)))
    for i, hop in enumerate((14, 22)):
        hearts = heart(30, 60 - i * 14, 10 + i) + heart(222, 50 - i * 10, 8 + i, PINK) + sparkle(196 - i * 10, 16 + i * 6, 9, YELLOW)
        add(f"jump{i + 1}", draw("joy", well, pose=i, hop=hop) + hearts)
    for number, look in enumerate(looks):
        for beat in (1, 2):
            add(f"step{number}-pet{beat}", draw("hopeblink", look, pose=beat - 1, breath=(beat - 1) * 3) + petted(beat))
    return sheet


def cat_sheet():
    return patient_sheet(lambda mood, look, pose, **more: cat(mood, look, pose, itch=pose, **more), ("fleas", "itchy", "lotion"), "collar")


def rabbit_sheet():
    def draw(mood, look, pose, **more):
        return rabbit("sneeze" if mood == "blink" else mood, look, **more)

    return patient_sheet(draw, ("cold", "drunk", "fed"), "well")


def turtle_sheet():
    return patient_sheet(turtle, ("muddy", "parched", "scratch"), "well")


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


def scroll_buttons():
    # The left one ends where the first slot of the bar begins: both would take the click.
    sheet = Sheet(45, 84, 3)
    add_states(sheet, "left", solid(box(3, 6, 39, 72, 14), TEAL, 5) + move(arrow(0, 0, 0.56, turn=180), 22, 42))
    sheet.below(100, 84, 3)
    add_states(sheet, "right", solid(box(6, 6, 88, 72, 20), TEAL, 5) + move(arrow(0, 0, 1.0), 50, 42))
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


def book_back():
    sheet = Sheet(112, 84, 3)
    add_states(sheet, "back", solid(box(8, 10, 96, 62, 26), GREEN, 6) + arrow(55, 41, 1.0, turn=180))
    return sheet


def person_face():
    sheet = Sheet(32, 32, 1)
    sheet.add("face", child_face(16, 17, 15))
    return sheet


def person_suit():
    sheet = Sheet(64, 96, 1)
    sheet.add("suit", doctor_suit())
    return sheet


def person_doctor():
    sheet = Sheet(64, 128, 1)
    sheet.add("person", move(doctor_suit(), 0, 32) + child_face(32, 17, 15))
    return sheet


SHEETS = {
    "Info/Intro/intro": intro,
    "Info/Intro/start": intro_buttons,
    "Info/Intro/small": intro_small,
    "Info/Intro/freshpanel": fresh_panel,
    "Info/Floor1/hall1/hall": hall,
    "Info/Floor1/hall1/medicalbook": medicalbook,
    "Info/Floor1/hall1/dogportrait": lambda: portrait(dog_face(0, 0, 0.95)),
    "Info/Floor1/hall1/catportrait": lambda: portrait(cat_face(0, 2, 1.0)),
    "Info/Floor1/hall1/rabbitportrait": lambda: portrait(rabbit_face(0, 8, 0.9)),
    "Info/Floor1/hall1/turtleportrait": lambda: portrait(turtle_face(0, 0, 0.9)),
    "Info/Floor1/dogroom/room": dogroom,
    "Info/Floor1/dogroom/dog": dog_sheet,
    "Info/Floor1/hall1/nextsign": next_sign,
    "Info/Floor1/hall2/hall": hall2,
    "Info/Floor1/catroom/room": catroom,
    "Info/Floor1/catroom/cat": cat_sheet,
    "Info/Floor1/rabbitroom/room": rabbitroom,
    "Info/Floor1/rabbitroom/rabbit": rabbit_sheet,
    "Info/Floor2/hall1/hall": floor2hall,
    "Info/Floor2/turtleroom/room": turtleroom,
    "Info/Floor2/turtleroom/turtle": turtle_sheet,
    "Info/Floor1/emptyroom1/room": emptyroom,
    "Info/Floor1/emptyroom1/basket": tool_basket,
    "Info/Elevator/room": elevator,
    "Info/Elevator/lift1button": lambda: lift_button(1),
    "Info/Elevator/lift2button": lambda: lift_button(2),
    "Info/Elevator/lift3button": lambda: lift_button(3),
    "Info/Book/book": bookscreen,
    "Info/Book/back": book_back,
    "Info/Doctor/doctor": doctor_sheet,
    "Info/Doctor/eyes": doctor_eyes_sheet,
    "Info/GlobalReferences/images/yesno": yes_no,
    "Info/GlobalReferences/images/person/face": person_face,
    "Info/GlobalReferences/images/person/doctorsuit": person_suit,
    "Info/GlobalReferences/images/person/doctor": person_doctor,
    "Info/Tools/bar": tool_bar,
    "Info/Tools/tool": key_colour,
    "Info/Tools/scroll": scroll_buttons,
    "Info/Cursors/exitpanel": exit_panel,
}
SHEETS.update({f"Info/GlobalReferences/doors/{name}": make for name, make in DOORS.items()})
SHEETS.update(arcade_sheets(Sheet, add_states))
for _name, _tool, _x, _y, _size in TOOLS:
    SHEETS[f"Info/Tools/{_name}/tool"] = partial(bar_tool, _tool, _x, _y, _size)
    if _name != "medicalbook":
        SHEETS[f"Info/Cursors/{_name}/pointer"] = partial(pointer, _name, _tool)
    if _name not in ("hand", "medicalbook"):
        SHEETS[f"Info/Floor1/emptyroom1/{_name}"] = partial(shelf_item, _name, _tool)
