"""Models of children at the pointer: how late they act on what they see, how well and how fast they aim.

A child looks, decides, moves the hand and clicks; what it clicks is where the thing was when it looked.
It doesn't reckon ahead, so a thing that moves is often missed, and then it looks again.
"""

import dataclasses
import math
import random


@dataclasses.dataclass(frozen=True)
class Child:
    name: str
    level: str  # the difficulty on which this child is counted
    delay: float  # seconds from seeing to acting, the middle of a lognormal distribution
    spread: float  # its sigma: choice reactions of children are two to three times an adult's
    aim: float  # sigma of the error of the hand, in pixels, each way
    reach: float  # seconds a bit of difficulty (Fitts) that a move of the hand takes
    plan: float  # how often the next move of a sliding picture is one that leads on
    slower: float = 1.0  # everything takes so much longer


CHILDREN = (
    Child("4 years", "Easy", 0.80, 0.35, 15, 0.32, 0.45),
    Child("6 years", "Normal", 0.60, 0.25, 8, 0.24, 0.70),
    Child("6, first mouse", "Easy", 0.60, 0.25, 16, 0.24, 0.70, 1.5),
    Child("8 years", "Hard", 0.45, 0.20, 6, 0.18, 0.85),
)
START_OF_MOVE = 0.15  # seconds before the hand is under way
NEVER_FASTER = 0.2  # seconds


class Hand:
    """The hand of one child: where the pointer is, and what chance makes of its intentions."""

    def __init__(self, child, seed):
        self.child, self.chance = child, random.Random(seed)
        self.x, self.y = 400.0, 300.0

    def hesitation(self):
        """Milliseconds from seeing to acting."""
        delay = self.chance.lognormvariate(math.log(self.child.delay), self.child.spread)
        return 1000 * max(delay * self.child.slower, NEVER_FASTER)

    def travel(self, x, y, size):
        """Milliseconds of the move to a thing of that size."""
        bits = math.log2(math.hypot(x - self.x, y - self.y) / max(size, 1) + 1)
        return 1000 * (START_OF_MOVE + self.child.reach * bits) * self.child.slower

    def land(self, x, y):
        """The pixel where the hand ends that meant to go to (x, y)."""
        self.x = min(max(self.chance.gauss(x, self.child.aim), 0), 799)
        self.y = min(max(self.chance.gauss(y, self.child.aim), 0), 599)
        return round(self.x), round(self.y)
