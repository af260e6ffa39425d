"""The doctor, what she says in pictures, and the drawn child that a photograph replaces."""

from animals import dog_paw
from cat import cat_face, flea
from items import (
    again, antibiotic, antiseptic, arrow, bandaid, basket, book, bubble, calamine, cog_button, dog_face,
    fleacollar, fleapowder, grapes, hand, question, small_arrow, soap, tick, water,
)
from people import child_face, doctor, doctor_eyes, doctor_suit
from rabbit import rabbit_face
from shapes import (
    CORAL, GREEN, ORANGE, PINK, WOOD, YELLOW, box, ellipse, flat, glowing, heart, light, move, solid, sparkle,
    stroke,
)
from sheet import Sheet
from turtle import turtle_face


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
        ("helping", hand(52, 84, 1.3) + hand(104, 84, 1.3) + cog_button(166, 76, 32, GREEN, tick(166, 73, 0.8)) + heart(78, 40, 13)),
    )


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
