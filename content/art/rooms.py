"""The full screens outside the arcade: entrance, halls, elevator, rooms and the book."""

from animals import dog
from cat import cat
from furniture import (
    ball, bell, bone, bowl, bunting, carrot, clock, cloud, cupboard, curtains, desk, fish, flower, lamp, plant,
    poster, rug, shadow, shelf, sunbeam, table, tree, wall, window, wool,
)
from items import (
    antibiotic, antiseptic, arrow, bandaid, calamine, fleacollar, fleapowder, grapes, lettering, lettering_width,
    soap, water,
)
from people import doctor
from rabbit import rabbit
from shapes import (
    CORAL, CREAM, DARKWOOD, GREEN, LAVENDER, MINT, ORANGE, OUTLINE, PEACH, PINK, SKY, TEAL, WHITE, WOOD, YELLOW,
    box, cheek, cross_path, ellipse, flat, heart, light, limb, move, paw_print, poly, shade, shut_eye, solid,
    stroke,
)
from sheet import screen
from turtle import turtle


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
