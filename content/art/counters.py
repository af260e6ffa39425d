"""What the four games share: buttons, and the counters of what is left."""

from arcade_sprites import germ, play_bubble
from furniture import carrot
from items import again, arrow, cog_button, question, tick
from shapes import (
    CORAL, CREAM, GREEN, ORANGE, OUTLINE, SKY, TEAL, YELLOW, box, ellipse, flat, heart, heart_path, light, move, shade, solid,
    star_path, stroke,
)


def small_buttons(sheet, add_states):
    """Help, the way out, and the tick that confirms it: 84 by 92 each."""
    add_states(sheet, "help", cog_button(42, 46, 36, SKY, question(42, 38, 0.8, YELLOW)))
    door = solid("M16,84V26Q16,10 32,10H52Q68,10 68,26V84Z", CORAL, 5) + solid("M26,84V32Q26,20 38,20H46Q58,20 58,32V84Z", light(YELLOW, 0.4), 0, 3)
    add_states(sheet, "leave", door + move(arrow(0, 0, 0.75, turn=180, fill=TEAL), 42, 56))
    add_states(sheet, "tick", cog_button(42, 46, 36, GREEN, tick(42, 43, 0.9)))
    return sheet


def replay_button(sheet, add_states):
    add_states(sheet, "replay", cog_button(92, 92, 80, ORANGE, again(88, 88, 1.7)))
    return sheet


def star_counter(sheet):
    """Fifteen stars, of which 0 to 15 shine."""
    for shining in range(16):
        out = solid(box(2, 2, 308, 32, 15), CREAM, 0, 3)
        for i in range(15):
            out += flat(star_path(22 + i * 19.2, 18, 9), YELLOW if i < shining else shade(CREAM, 0.12)) + stroke(star_path(22 + i * 19.2, 18, 9), OUTLINE, 1.5)
        sheet.add(f"stars{shining}", out)
    return sheet


def germ_counter(sheet):
    """The germs that are left, up to twelve."""
    for left in range(13):
        out = solid(box(2, 2, 466, 40, 18), CREAM, 0, 3)
        for i in range(12):
            out += move(germ(GREEN), 14 + i * 37.5, 8, size=0.48) if i < left else flat(ellipse(29 + i * 37.5, 23, 4), shade(CREAM, 0.14))
        sheet.add(f"germs{left}", out)
    return sheet


def heart_counter(sheet):
    """Five hearts, of which 5 to 0 are left."""
    for left in range(5, -1, -1):
        out = solid(box(2, 2, 136, 32, 15), CREAM, 0, 3)
        for i in range(5):
            out += heart(20 + i * 25, 18, 9) if i < left else flat(heart_path(20 + i * 25, 18, 8), shade(CREAM, 0.14))
        sheet.add(f"hearts{left}", out)
    return sheet


def bubble_counter(sheet):
    """The bubbles that are left: three, two, one."""
    for left in (3, 2, 1):
        out = solid(box(2, 2, 128, 44, 20), CREAM, 0, 3)
        for i in range(3):
            out += play_bubble(26 + i * 40, 24, 14) if i < left else flat(ellipse(26 + i * 40, 24, 11), shade(CREAM, 0.12))
        sheet.add(f"bubbles{left}", out)
    return sheet


def lives_counter(sheet):
    """The two lives of the spray bottle."""
    for left in (2, 1, 0):
        out = solid(box(2, 2, 72, 32, 15), CREAM, 0, 3)
        for i in range(2):
            out += heart(23 + i * 30, 17, 11) if i < left else flat(heart_path(23 + i * 30, 17, 10), shade(CREAM, 0.14))
        sheet.add(f"lives{left}", out)
    return sheet


def carrot_clock(sheet):
    """The time that is left: six carrots, of which the rabbit eats one after the other."""
    for left in range(6, -1, -1):
        out = solid(box(4, 4, 76, 242, 20), CREAM, 5)
        for i in range(6):
            x, y = 24 + i % 2 * 36, 206 - i // 2 * 76
            out += move(carrot(0, 0, 0.62, 12), x, y) if i < left else flat(ellipse(x, y, 5), shade(CREAM, 0.16))
        sheet.add(f"carrots{left}", out)
    return sheet
