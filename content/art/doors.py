"""The doors and the boards that lead from one screen to another."""

from cat import cat_face
from furniture import door_leaf, lift_leaf, sign_plate
from items import arrow, bandaid, cog_button, dog_face, house
from rabbit import rabbit_face
from shapes import (
    CORAL, CREAM, DARKWOOD, GREEN, LAVENDER, ORANGE, OUTLINE, PINK, TEAL, WHITE, YELLOW, ellipse, glowing, solid,
    stroke,
)
from sheet import Sheet
from turtle import turtle_face


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


def hall_sign(cx, cy):
    """The hall's pictogram: an arrow back."""
    return arrow(cx - 2, cy, 0.95, turn=180, fill=TEAL)


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


def next_sign():
    """The board that leads to the second hall: cat, rabbit and an arrow, hanging on two cords."""
    sheet = Sheet(152, 132, 2)
    board = stroke("M40,4V34M112,4V34", OUTLINE, 9) + stroke("M40,4V34M112,4V34", DARKWOOD, 3)
    board += solid("M10,28H112L144,70L112,118H10Q4,118 4,112V34Q4,28 10,28Z", CREAM, 6) + stroke("M14,36H108L134,70L108,110H14Z", GREEN, 4)
    board += cat_face(40, 76, 0.68) + rabbit_face(80, 78, 0.68) + arrow(116, 72, 0.5, fill=YELLOW)
    sheet.add("sign", board)
    sheet.add("sign-glow", glowing(board))
    return sheet


def lift_button(stop):
    """A round button with the patients that live at this stop of the elevator, and the stop's number in dots."""
    sheet = Sheet(132, 132, 2)
    faces = (dog_face(66, 54, 0.95), cat_face(44, 57, 0.72) + rabbit_face(88, 58, 0.72), turtle_face(66, 54, 0.95))[stop - 1]
    dots = "".join(solid(ellipse(66 + (i - (stop - 1) / 2) * 20, 98, 7), WHITE, 0, 3) for i in range(stop))
    piece = cog_button(66, 64, 57, (YELLOW, GREEN, PINK)[stop - 1], faces + dots)
    sheet.add("rest", piece)
    sheet.add("glow", glowing(piece))
    return sheet
