"""The sliding picture: which boards can be solved, and the ways that lead on."""

import functools
import heapq

GOAL = (1, 2, 3, 4, 5, 6, 7, 8, 0)


def solvable(board):
    tiles = [tile for tile in board if tile]
    return sum(a > b for i, a in enumerate(tiles) for b in tiles[i + 1:]) % 2 == 0


def slides(board):
    """(place that is clicked, board afterwards) for each tile beside the gap; places from 0."""
    gap = board.index(0)
    for step in (-3, 3, -1, 1):
        place = gap + step
        if 0 <= place < 9 and (abs(step) == 3 or place // 3 == gap // 3):
            after = list(board)
            after[gap], after[place] = after[place], 0
            yield place, tuple(after)


def away(board):
    return sum(abs((tile - 1) % 3 - place % 3) + abs((tile - 1) // 3 - place // 3)
               for place, tile in enumerate(board) if tile)


@functools.lru_cache(maxsize=None)
def leads_on(board):
    """The place to click next on a shortest way to the finished picture; None without a way."""
    if not solvable(board):
        return None
    heap, seen = [(away(board), 0, board, None)], set()
    while heap:
        _, moves, now, first = heapq.heappop(heap)
        if now == GOAL:
            return first
        if now in seen:
            continue
        seen.add(now)
        for place, after in slides(now):
            if after not in seen:
                heapq.heappush(heap, (moves + 1 + away(after), moves + 1, after, place if first is None else first))
    return None
