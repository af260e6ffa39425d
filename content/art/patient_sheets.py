"""The patients in all their states, and the portraits of those that are well."""

from animals import dog
from cat import cat
from rabbit import rabbit
from shapes import (
    CREAM, OUTLINE, PINK, WOOD, YELLOW, box, glowing, heart, light, move, paw_print, ring, shade, solid, sparkle,
    stroke,
)
from sheet import Sheet
from turtle import turtle


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


def portrait(face):
    """A frame in the reception: empty, and with the face of the patient that is well."""
    sheet = Sheet(120, 120, 3)
    frame = stroke("M40,22L60,4L80,22", OUTLINE, 4) + solid(box(8, 18, 104, 96, 12), WOOD, 5)
    sheet.add("empty", frame + solid(box(22, 32, 76, 68, 6), CREAM, 0, 3) + paw_print(60, 66, 24, shade(CREAM, 0.14)))
    well = frame + solid(box(22, 32, 76, 68, 6), light(YELLOW, 0.2), 0, 3, inside=move(face, 60, 72)) + heart(98, 34, 13) + heart(22, 100, 9, PINK)
    sheet.add("well", well)
    sheet.add("well-glow", glowing(well))
    return sheet
