#!/usr/bin/env python3
"""screen.py SCREEN EXPRESSION: waits until the expression is true of what Xvfb shows, and then remembers that as `then`.
A colour stands for the box, the number and the brightness of its pixels; `unlike` is the number of pixels that are not
as they were at the last `keep()`. Ends with 1 after 20 seconds, and says what is shown."""
import pickle
import shutil
import sys
import time
from pathlib import Path
from types import SimpleNamespace

COLOURS = {
    "red": lambda r, g, b: r > 2 * g + 40 and r > 2 * b + 40,
    "green": lambda r, g, b: g > r + 40 and g > b + 40,
    "blue": lambda r, g, b: b > 2 * r + 60 and b > 2 * g + 60,
    "white": lambda r, g, b: min(r, g, b) > 240,
    "dark": lambda r, g, b: max(r, g, b) < 130,
}


def rgb(pixel):
    return pixel.to_bytes(4, "big")[1:]


class Kinds(dict):
    """The colours of pixels, 0 for any other; remembered, for most pixels are like others."""

    def __missing__(self, pixel):
        fitting = [kind for kind, fits in enumerate(COLOURS.values(), 1) if fits(*rgb(pixel))]
        self[pixel] = fitting[0] if fitting else 0
        return self[pixel]


def window(path):
    """The rows of a window of 400 x 300 at the left top of a screen."""
    dump = Path(path).read_bytes()
    header, row_bytes, colours = (int.from_bytes(dump[at:at + 4], "big") for at in (0, 48, 76))
    begin = header + 12 * colours
    return [memoryview(dump)[begin + y * row_bytes:][:1600].cast("I") for y in range(300)]


def seen(rows):
    kinds, found = Kinds(), {}
    rows = [bytes(map(kinds.__getitem__, row)) for row in rows]
    for kind, name in enumerate(COLOURS, 1):
        holding = [y for y, row in enumerate(rows) if kind in row] or [0]
        left = min(rows[y].find(kind) % 400 for y in holding)
        found[name] = SimpleNamespace(
            left=left, right=max(rows[y].rfind(kind) for y in holding), top=holding[0], bottom=holding[-1],
            corner=next((y for y in holding if rows[y][left] == kind), 0), count=sum(row.count(kind) for row in rows),
            brightest=max([max(rgb(pixel)) for pixel, its in kinds.items() if its == kind] or [0]))
    return found


screen, expression = sys.argv[1:]
then = SimpleNamespace(**pickle.loads(Path("then").read_bytes())) if "then" in expression else None
until, last = time.monotonic() + 20, None
while time.monotonic() < until:
    rows = window(screen)
    if rows != last:
        now, last = seen(rows), rows
        kept = window("kept") if "unlike" in expression else rows
        unlike = sum(max(abs(a - b) for a, b in zip(rgb(one), rgb(other))) > 20
                     for row, old in zip(rows, kept) if row != old for one, other in zip(row, old))
        if eval(expression, {**now, "then": then, "unlike": unlike, "keep": lambda: shutil.copy(screen, "kept")}):
            Path("then").write_bytes(pickle.dumps(now))
            sys.exit()
    time.sleep(0.05)
sys.exit(f"{now}, unlike: {unlike}")
