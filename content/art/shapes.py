"""The shape library: the palette, the one outline, and the few strokes that every picture is made of.

Every function returns a piece of SVG text. Lengths are pixels, angles degrees, y grows downwards.
A piece never holds its own size: `Sheet` in sheet.py gives each cell its frame.
"""

import math

# Palette of sixteen. Shades and lights are mixed from these by `shade` and `light`, so that a new
# picture stays in the same warm family.
OUTLINE = "#4a2f27"
CREAM = "#fff4dc"
PEACH = "#fbd3b0"
MINT = "#cdeacb"
LAVENDER = "#dccff0"
WOOD = "#dda868"
DARKWOOD = "#b27744"
SKIN = "#f9cfa8"
FUR = "#e6b57d"
CORAL = "#ec7063"
ORANGE = "#f5a04a"
YELLOW = "#ffd95a"
GREEN = "#7fc26c"
TEAL = "#4da9a7"
SKY = "#a5d8f0"
PINK = "#f6a3b3"
WHITE = "#fffdf7"

LINE = 4
GLOW = "#ffe04a"

_serial = 0


def restart_names():
    """Starts the numbering of clip paths again, so that a sheet's text depends on nothing but itself."""
    global _serial
    _serial = 0


def _name():
    global _serial
    _serial += 1
    return f"c{_serial}"


def _mix(colour, other, part):
    a = [int(colour[i : i + 2], 16) for i in (1, 3, 5)]
    b = [int(other[i : i + 2], 16) for i in (1, 3, 5)]
    return "#" + "".join(f"{round(x + (y - x) * part):02x}" for x, y in zip(a, b))


def shade(colour, part=0.2):
    """The soft shade of a colour: a step towards warm brown."""
    return _mix(colour, "#8a4a3c", part)


def light(colour, part=0.55):
    """The light of a colour: a step towards cream."""
    return _mix(colour, "#fffbe8", part)


# --- outlines of shapes, as path data -------------------------------------------------------------


def n(value):
    return f"{value:.2f}".rstrip("0").rstrip(".")


def ellipse(cx, cy, rx, ry=None):
    ry = rx if ry is None else ry
    return (
        f"M{n(cx - rx)},{n(cy)}A{n(rx)},{n(ry)} 0 1 1 {n(cx + rx)},{n(cy)}"
        f"A{n(rx)},{n(ry)} 0 1 1 {n(cx - rx)},{n(cy)}Z"
    )


def box(x, y, w, h, r=8):
    r = min(r, w / 2, h / 2)
    return (
        f"M{n(x + r)},{n(y)}H{n(x + w - r)}Q{n(x + w)},{n(y)} {n(x + w)},{n(y + r)}V{n(y + h - r)}"
        f"Q{n(x + w)},{n(y + h)} {n(x + w - r)},{n(y + h)}H{n(x + r)}Q{n(x)},{n(y + h)} {n(x)},{n(y + h - r)}"
        f"V{n(y + r)}Q{n(x)},{n(y)} {n(x + r)},{n(y)}Z"
    )


def poly(*points):
    return "M" + "L".join(f"{n(x)},{n(y)}" for x, y in points) + "Z"


def star_path(cx, cy, r, points=5, inner=0.5, turn=-90):
    corners = []
    for i in range(points * 2):
        radius = r if i % 2 == 0 else r * inner
        angle = math.radians(turn + i * 180 / points)
        corners.append((cx + radius * math.cos(angle), cy + radius * math.sin(angle)))
    return poly(*corners)


def heart_path(cx, cy, s):
    """A heart of half width s."""
    return (
        f"M{n(cx)},{n(cy + s)}C{n(cx - s * 1.5)},{n(cy)} {n(cx - s * 0.9)},{n(cy - s * 1.1)} {n(cx)},{n(cy - s * 0.35)}"
        f"C{n(cx + s * 0.9)},{n(cy - s * 1.1)} {n(cx + s * 1.5)},{n(cy)} {n(cx)},{n(cy + s)}Z"
    )


def cross_path(cx, cy, s, arm=0.36):
    a = s * arm
    return poly(
        (cx - a, cy - s), (cx + a, cy - s), (cx + a, cy - a), (cx + s, cy - a), (cx + s, cy + a), (cx + a, cy + a),
        (cx + a, cy + s), (cx - a, cy + s), (cx - a, cy + a), (cx - s, cy + a), (cx - s, cy - a), (cx - a, cy - a),
    )  # fmt: skip


# --- painted pieces -------------------------------------------------------------------------------


def flat(d, fill, opacity=None):
    """A shape without an outline."""
    more = f' opacity="{opacity}"' if opacity is not None else ""
    return f'<path d="{d}" fill="{fill}"{more}/>'


def stroke(d, colour=OUTLINE, width=LINE, opacity=None):
    """A line with round ends and round joins."""
    more = f' opacity="{opacity}"' if opacity is not None else ""
    return (
        f'<path d="{d}" fill="none" stroke="{colour}" stroke-width="{n(width)}" '
        f'stroke-linecap="round" stroke-linejoin="round"{more}/>'
    )


def solid(d, fill, soft=6, width=LINE, inside="", glint=None):
    """A body: flat fill, one soft shade along the lower right, the one outline.

    `soft` is how far the shade reaches in, `inside` is painted within the shape and below its
    outline, `glint` is an ellipse (cx, cy, rx, ry) of light.
    """
    name = _name()
    out = [f'<clipPath id="{name}"><path d="{d}"/></clipPath><g clip-path="url(#{name})">']
    out.append(flat(d, shade(fill) if soft else fill))
    if soft:
        out.append(f'<path d="{d}" fill="{fill}" transform="translate({n(-soft)},{n(-soft)})"/>')
    out.append(inside)
    if glint:
        out.append(flat(ellipse(*glint), light(fill, 0.75)))
    out.append("</g>")
    if width:
        out.append(stroke(d, OUTLINE, width))
    return "".join(out)


def limb(d, fill, width, soft=True):
    """An arm, a leg or a tail: a thick line with the outline around it and a light along it."""
    out = stroke(d, OUTLINE, width + 2 * LINE) + stroke(d, shade(fill) if soft else fill, width)
    if soft:
        out += f'<g transform="translate(-2,-2)">{stroke(d, fill, width - 4)}</g>'
    return out


def move(piece, x=0, y=0, turn=0, about=(0, 0), size=1):
    parts = []
    if x or y:
        parts.append(f"translate({n(x)},{n(y)})")
    if turn:
        parts.append(f"rotate({n(turn)} {n(about[0])} {n(about[1])})")
    if size != 1:
        sx, sy = size if isinstance(size, tuple) else (size, size)
        parts.append(f"translate({n(about[0])},{n(about[1])}) scale({n(sx)},{n(sy)}) translate({n(-about[0])},{n(-about[1])})")
    return f'<g transform="{" ".join(parts)}">{piece}</g>' if parts else piece


def glowing(piece, lift=3):
    """The piece as it looks under the pointer: lifted, with the yellow ring around its outline."""
    return f'<g filter="url(#glow)">{move(piece, 0, -lift)}</g>'


def ring(piece):
    """The yellow ring alone, as wide as that of `glowing`: it lies under moving frames of the piece."""
    return f'<g filter="url(#ring)">{piece}</g>'


def pressed(piece, down=2):
    """The piece as it looks while it is pressed: down, the ring still around it."""
    return f'<g filter="url(#glow)">{move(piece, 0, down)}</g>'


DEFINITIONS = (
    '<filter id="ring" x="-30%" y="-30%" width="160%" height="160%" color-interpolation-filters="sRGB">'
    '<feGaussianBlur in="SourceAlpha" stdDeviation="3.4"/>'
    '<feComponentTransfer result="wide"><feFuncA type="linear" slope="40" intercept="-2"/></feComponentTransfer>'
    f'<feFlood flood-color="{GLOW}"/><feComposite in2="wide" operator="in"/></filter>'
    '<filter id="glow" x="-30%" y="-30%" width="160%" height="160%" color-interpolation-filters="sRGB">'
    '<feGaussianBlur in="SourceAlpha" stdDeviation="2.8"/>'
    '<feComponentTransfer result="ring"><feFuncA type="linear" slope="40" intercept="-2"/></feComponentTransfer>'
    f'<feFlood flood-color="{GLOW}"/><feComposite in2="ring" operator="in" result="yellow"/>'
    '<feMerge><feMergeNode in="yellow"/><feMergeNode in="SourceGraphic"/></feMerge></filter>'
    '<linearGradient id="beam" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#fff3b8" stop-opacity="0.6"/>'
    '<stop offset="1" stop-color="#fff3b8" stop-opacity="0"/></linearGradient>'
    f'<linearGradient id="sky" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="{SKY}"/>'
    f'<stop offset="1" stop-color="{CREAM}"/></linearGradient>'
    '<linearGradient id="gutter"><stop offset="0" stop-color="#8a4a3c" stop-opacity="0"/>'
    '<stop offset="0.5" stop-color="#8a4a3c" stop-opacity="0.3"/><stop offset="1" stop-color="#8a4a3c" stop-opacity="0"/></linearGradient>'
    '<radialGradient id="warmth" cx="0.5" cy="0.35" r="0.75"><stop offset="0.45" stop-color="#fff3b8" stop-opacity="0.24"/>'
    '<stop offset="1" stop-color="#f5a04a" stop-opacity="0.1"/></radialGradient>'
)


# --- faces ----------------------------------------------------------------------------------------


def eye(cx, cy, rx=9, ry=12):
    """A big dark eye with two white glints."""
    return (
        flat(ellipse(cx, cy, rx, ry), OUTLINE)
        + flat(ellipse(cx - rx * 0.3, cy - ry * 0.35, rx * 0.4, ry * 0.36), WHITE)
        + flat(ellipse(cx + rx * 0.35, cy + ry * 0.4, rx * 0.2, ry * 0.18), WHITE)
    )


def shut_eye(cx, cy, rx=9, up=False):
    """A closed eye: a bow downwards when it blinks, upwards when it laughs."""
    bow = -rx * 1.1 if up else rx * 0.8
    return stroke(f"M{n(cx - rx)},{n(cy)}Q{n(cx)},{n(cy + bow)} {n(cx + rx)},{n(cy)}")


def squeezed_eye(cx, cy, rx=10, left=True):
    """An eye squeezed together: an arrow head towards the nose."""
    s = 1 if left else -1
    return stroke(f"M{n(cx - s * rx)},{n(cy - rx * 0.8)}L{n(cx + s * rx)},{n(cy)}L{n(cx - s * rx)},{n(cy + rx * 0.8)}")


def cheek(cx, cy, rx=12, ry=8):
    return flat(ellipse(cx, cy, rx, ry), PINK, 0.75)


def tear(cx, cy, s=8):
    d = f"M{n(cx)},{n(cy - s * 1.5)}Q{n(cx + s)},{n(cy)} {n(cx + s * 0.8)},{n(cy + s * 0.5)}A{n(s * 0.85)},{n(s * 0.85)} 0 1 1 {n(cx - s * 0.8)},{n(cy + s * 0.5)}Q{n(cx - s)},{n(cy)} {n(cx)},{n(cy - s * 1.5)}Z"
    return solid(d, SKY, 2, 3)


def heart(cx, cy, s, fill=CORAL):
    return solid(heart_path(cx, cy, s), fill, 3, glint=(cx - s * 0.45, cy - s * 0.3, s * 0.22, s * 0.18))


def star(cx, cy, r, fill=YELLOW):
    return solid(star_path(cx, cy, r), fill, 2, 3)


def sparkle(cx, cy, r, fill=WHITE):
    return solid(star_path(cx, cy, r, 4, 0.34), fill, 0, 3)


def paw_print(cx, cy, s, fill=OUTLINE):
    """A paw's print of half width s, without an outline."""
    out = flat(ellipse(cx, cy + s * 0.35, s * 0.6, s * 0.5), fill)
    for dx, dy in ((-0.75, -0.1), (-0.28, -0.55), (0.28, -0.55), (0.75, -0.1)):
        out += flat(ellipse(cx + s * dx, cy + s * dy, s * 0.24, s * 0.3), fill)
    return out
