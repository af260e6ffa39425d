"""Which function draws which picture.

`SHEETS` maps the path of a made picture, without its ending, to the function that gives its sheet.
"""

from functools import partial

from arcade import arcade_sheets
from buttons import book_back, exit_panel, fresh_panel, intro_buttons, intro_small, scroll_buttons, yes_no
from cat import cat_face
from doctor_sheets import doctor_eyes_sheet, doctor_sheet, person_doctor, person_face, person_suit
from doors import DOORS, lift_button, next_sign
from items import TOOLS, dog_face
from patient_sheets import cat_sheet, dog_sheet, portrait, rabbit_sheet, turtle_sheet
from rabbit import rabbit_face
from rooms import (
    bookscreen, catroom, dogroom, elevator, emptyroom, floor2hall, hall, hall2, intro, rabbitroom, turtleroom,
)
from sheet import Sheet, add_states
from tool_sheets import bar_tool, key_colour, medicalbook, pointer, shelf_item, tool_bar, tool_basket
from turtle import turtle_face

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
