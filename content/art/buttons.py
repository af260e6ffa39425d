"""Buttons and the boards that ask."""

from cat import cat_face
from items import again, arrow, cog_button, dog_face, house, moon, no_cross, question, tick, triangle
from rabbit import rabbit_face
from shapes import CORAL, CREAM, GREEN, LAVENDER, ORANGE, TEAL, YELLOW, box, ellipse, flat, move, solid, stroke, tear
from sheet import Sheet, add_states
from turtle import turtle_face


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
    """The two questions before a new game: all patients ill, and once more, with the tools gone as well."""
    sheet = Sheet(440, 310, 2)
    ill = cog_button(86, 92, 44, ORANGE, again(84, 88, 0.95)) + arrow(152, 92, 0.6, fill=YELLOW)
    ill += dog_face(214, 92, 0.8) + cat_face(280, 96, 0.8) + rabbit_face(340, 98, 0.7) + turtle_face(394, 92, 0.62)
    sheet.add("panel", panel(ill))
    sure = question(62, 92, 0.9) + dog_face(134, 66, 0.7) + cat_face(206, 70, 0.7) + rabbit_face(278, 72, 0.62) + turtle_face(346, 66, 0.62)
    sure += "".join(tear(x, 96, 9) for x in (116, 190, 264, 332)) + question(398, 92, 0.9)
    sheet.add("sure", panel(sure))
    return sheet


def scroll_buttons():
    # The left one ends where the first slot of the bar begins: both would take the click.
    sheet = Sheet(45, 84, 3)
    add_states(sheet, "left", solid(box(3, 6, 39, 72, 14), TEAL, 5) + move(arrow(0, 0, 0.56, turn=180), 22, 42))
    sheet.below(100, 84, 3)
    add_states(sheet, "right", solid(box(6, 6, 88, 72, 20), TEAL, 5) + move(arrow(0, 0, 1.0), 50, 42))
    return sheet


def book_back():
    sheet = Sheet(112, 84, 3)
    add_states(sheet, "back", solid(box(8, 10, 96, 62, 26), GREEN, 6) + arrow(55, 41, 1.0, turn=180))
    return sheet
