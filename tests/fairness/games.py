"""What a child does in each of the games: it looks, decides, and acts on what it saw."""

import dataclasses

from picture import leads_on, slides

LONGEST = 10 * 60 * 1000  # milliseconds; a game that isn't over then stands still
PLAY = (400, 300)  # the green button, and the orange one of a new bubble
LOOK = 100  # milliseconds between two looks at a thing that the hand follows
SETTLED = 1500  # milliseconds after which a room is looked at again


@dataclasses.dataclass
class Played:
    """How a step went: losses, whether it was taken, and the seconds of its last game (none: no game)."""

    lost: int
    taken: bool
    seconds: float | None
    reason: str = ""


class Step:
    """A step of a cure that leads to a game."""

    screen = room = patient = tool = ""
    state = "default"

    def __init__(self, session, hand):
        self.session, self.hand = session, hand
        self.now = 0.0

    def prepare(self):
        """The room as a child finds it that has the right tool in its hand and has never played this game."""
        self.session.ask("send cs_floor1hall1", f"send cs_{self.room}", "send toobj_level_changestate_default",
                         f"tell current/{self.patient} changestate_{self.state}",
                         "send toobj_tries_changestate_default", f"send cursor_{self.tool}", "click 790 300", "tick 100")

    def take(self, tries):
        lost = 0
        while True:
            self.session.ask(f"event current/{self.patient} -1 -1 {self.tool}mouseclick")
            if self.where()["screen"] != self.screen:
                return Played(lost, self.taken(), None)
            seconds = self.play()
            if seconds is None:
                return Played(lost, False, None, "stood still")
            if self.taken():
                return Played(lost, True, seconds)
            lost += 1
            if lost == tries:
                return Played(lost, False, seconds)
            self.session.ask(f"tick {SETTLED}")

    def taken(self):
        state = self.session.ask(f"object current/{self.patient}")["object"]["state"]
        return state.split("-")[0] != self.state

    def where(self):
        return self.session.ask("state")

    def play(self):
        """Plays to the end; gives the seconds that it took, or None where it never ends."""
        self.now = 0.0
        if self.where()["skipNextClick"]:
            self.session.ask("click 5 590")
        self.session.ask(f"click {PLAY[0]} {PLAY[1]}")
        self.hand.x, self.hand.y = PLAY
        self.begin()
        while self.now < LONGEST:
            if self.where()["screen"] != self.screen:
                return self.now / 1000
            self.act()
        self.session.ask("send subgame_lost")
        return None

    def begin(self):
        """A new game is at hand."""

    def act(self):
        raise NotImplementedError

    def wait(self, ms):
        ms = max(round(ms), 1)
        self.now += ms
        self.session.ask(f"tick {ms}")
        return self.where()["screen"] == self.screen

    def go(self, x, y, size, click):
        """Acts on what was seen: hesitates, moves there, clicks."""
        if self.wait(self.hand.hesitation() + self.hand.travel(x, y, size)):
            x, y = self.hand.land(x, y)
            self.session.ask(f"move {x} {y}", *([f"click {x} {y}"] if click else []))

    def cells(self):
        screen = self.session.ask("tree")["object"]
        field = next(child for child in screen["children"] if child["name"] == "playfield")
        return [cell for cell in field["children"] if cell["visible"]]


class Germs(Step):
    """Steps aside when a drop comes down on the bottle, else sprays below the lowest germ."""

    screen, room, patient, tool = "shooterscreen", "dogroom", "dog", "antiseptic"

    def begin(self):
        self.drops = {}

    def act(self):
        cells = self.cells()
        bottle = next(cell for cell in cells if cell["name"] == "cell111")
        drops = {cell["name"]: cell for cell in cells if cell["name"].startswith("shot")}
        near = [drop for name, drop in drops.items() if self.falls(name, drop)
                and bottle["x"] - 60 < drop["x"] < bottle["x"] + 80]
        self.drops = drops
        germs = [cell for cell in cells if cell["type"] in ("cell2", "cell3", "cell4")]
        if near:
            drop = max(near, key=lambda cell: cell["y"])
            aside = drop["x"] - 130 if drop["x"] > 260 else drop["x"] + 90
            self.go(aside, 540, 60, click=False)
        elif germs:
            target = max(germs, key=lambda cell: (cell["y"], -abs(cell["x"] - self.hand.x)))
            self.go(target["x"] + 21, 540, 64, click=True)
        else:
            self.wait(100)

    def falls(self, name, drop):
        """A drop that is a foe's: it looks so, or it is lower than when it was last seen."""
        if drop["state"] in ("foe", "mine", "bad"):
            return drop["state"] == "foe"
        return name not in self.drops or drop["y"] > self.drops[name]["y"]


class Mud(Step):
    """Holds the soap below where the bubble was seen a moment ago, and throws a new one when it is lost."""

    screen, room, patient, tool = "brickscreen", "turtleroom", "turtle", "soap"

    def begin(self):
        self.seen, self.delay, self.awake = [], 0.0, 0.0

    def act(self):
        field = self.session.ask("object current/playfield")["object"]
        if field["m_nRunState"] == 2:
            self.go(*PLAY, 160, click=True)
            self.seen = []
            return
        if self.now >= self.awake:  # the attention of a child changes from second to second
            self.delay, self.awake = self.hand.hesitation(), self.now + 1000
        bubble = self.session.ask("object current/playfield/shot1")["object"]
        self.seen = [*self.seen[-40:], (self.now, bubble["x"] + bubble["width"] / 2)]
        known = [x for when, x in self.seen if when <= self.now - self.delay]
        if known:
            soap = self.session.ask("object current/playfield/paddle1")["object"]
            x, y = self.hand.land(known[-1] - soap["width"] / 2, 540)
            self.session.ask(f"move {x} {y}")
        self.wait(LOOK)


class Fleas(Step):
    """Clicks a flea with much room between it and all butterflies, one that is near the hand."""

    screen, room, patient, tool = "bobblescreen", "catroom", "cat", "fleapowder"

    def act(self):
        cells = self.cells()
        good = [cell for cell in cells if cell["type"] == "good" and cell["width"] > 1]
        fleas = [cell for cell in cells if cell["type"] == "bad" and cell["width"] > 1
                 and 0 <= cell["x"] + 32 < 800 and 0 <= cell["y"] + 30 < 600]

        def room(flea):
            return min((max(abs(flea["x"] - cell["x"]), abs(flea["y"] - cell["y"])) for cell in good), default=999)

        def way(flea):
            return abs(flea["x"] + 32 - self.hand.x) + abs(flea["y"] + 30 - self.hand.y)

        free = [flea for flea in fleas if room(flea) > 90]
        if not free:
            self.wait(300)
            return
        flea = min(free, key=way)
        self.go(flea["x"] + 32, flea["y"] + 30, 50, click=True)


class Picture(Step):
    """Clicks a tile that leads on, as often as the child sees that far; else one beside the gap."""

    screen, room, patient, tool, state = "squarescreen", "rabbitroom", "rabbit", "grapes", "better1"

    def act(self):
        field = self.session.ask("object current/playfield")["object"]
        if field["m_bSolved"] or field["m_bStopped"]:
            self.wait(500)
            return
        board = tuple(int(place) for place in field["m_aBoard"].split())
        ways = [place for place, _ in slides(board)]
        best = leads_on(board)
        far = best is not None and self.hand.chance.random() < self.hand.child.plan
        place = best if far else self.hand.chance.choice(ways)
        self.go(205 + place % 3 * 130 + 63, 66 + place // 3 * 130 + 63, 120, click=True)


GAMES = {"germs": Germs, "fleas": Fleas, "mud": Mud, "picture": Picture}
