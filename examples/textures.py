#!/usr/bin/env python3
"""Draws the textures of the example scenes.

Writes 24-bit uncompressed .bmp files into examples/village and
examples/hamlet. The result is the same on every run and on every machine.
Only the standard library is used:

    python3 examples/textures.py
"""

import struct
from pathlib import Path

HERE = Path(__file__).resolve().parent


class Picture:
    """A grid of (red, green, blue) pixels; row 0 is the top row."""

    def __init__(self, width, height, colour, seed=1):
        self.width, self.height = width, height
        self.rows = [[colour] * width for _ in range(height)]
        self.state = seed

    def random(self, limit):
        """A whole number from 0 to limit - 1, the same sequence on every run."""
        self.state = (self.state * 1103515245 + 12345) % (1 << 31)
        return (self.state >> 16) % limit

    def dot(self, x, y, colour):
        if 0 <= x < self.width and 0 <= y < self.height:
            self.rows[y][x] = colour

    def box(self, x1, y1, x2, y2, colour):
        """Fills columns x1 to x2 and rows y1 to y2, both ends included."""
        for y in range(y1, y2 + 1):
            for x in range(x1, x2 + 1):
                self.dot(x, y, colour)

    def frame(self, x1, y1, x2, y2, colour):
        self.box(x1, y1, x2, y1, colour)
        self.box(x1, y2, x2, y2, colour)
        self.box(x1, y1, x1, y2, colour)
        self.box(x2, y1, x2, y2, colour)

    def disc(self, cx, cy, radius, colour):
        """Fills a disc; centre and radius in half pixels."""
        for y in range(self.height):
            for x in range(self.width):
                if (2 * x + 1 - cx) ** 2 + (2 * y + 1 - cy) ** 2 <= radius ** 2:
                    self.dot(x, y, colour)

    def line(self, x1, y1, x2, y2, colour, width=1):
        steps = max(abs(x2 - x1), abs(y2 - y1), 1)
        for i in range(steps + 1):
            x = (x1 * (steps - i) + x2 * i + steps // 2) // steps
            y = (y1 * (steps - i) + y2 * i + steps // 2) // steps
            self.box(x, y, x + width - 1, y + width - 1, colour)

    def noise(self, amount):
        """Lightens or darkens every pixel a little."""
        for row in self.rows:
            for x, pixel in enumerate(row):
                shift = self.random(2 * amount + 1) - amount
                row[x] = tuple(min(255, max(0, c + shift)) for c in pixel)

    def save(self, path):
        pad = b"\0" * (-3 * self.width % 4)
        data = b"".join(
            b"".join(bytes((b, g, r)) for r, g, b in row) + pad
            for row in reversed(self.rows))
        header = b"BM" + struct.pack("<IHHI", 54 + len(data), 0, 0, 54)
        info = struct.pack("<IiiHHIIiiII", 40, self.width, self.height, 1, 24,
                           0, len(data), 2835, 2835, 0, 0)
        path.write_bytes(header + info + data)


# Letters 5 wide, 7 high, one text row per pixel row.
LETTERS = {
    "A": "01110 10001 10001 11111 10001 10001 10001",
    "F": "11111 10000 10000 11110 10000 10000 10000",
    "I": "11111 00100 00100 00100 00100 00100 11111",
    "L": "10000 10000 10000 10000 10000 10000 11111",
    "M": "10001 11011 10101 10101 10001 10001 10001",
    "N": "10001 11001 10101 10011 10001 10001 10001",
    "R": "11110 10001 10001 11110 10100 10010 10001",
}


def letters(picture, text, x, y, size, colour):
    for letter in text:
        for row, bits in enumerate(LETTERS[letter].split()):
            for column, bit in enumerate(bits):
                if bit == "1":
                    left, top = x + column * size, y + row * size
                    picture.box(left, top, left + size - 1, top + size - 1, colour)
        x += 6 * size


def window(picture, x1, y1, x2, y2, frame=(240, 240, 232)):
    """A window with a cross bar."""
    picture.box(x1, y1, x2, y2, (96, 128, 160))
    picture.box(x1, y1, x2, (y1 + y2) // 2, (120, 152, 184))
    picture.frame(x1 - 1, y1 - 1, x2 + 1, y2 + 1, frame)
    picture.box((x1 + x2) // 2, y1, (x1 + x2 + 1) // 2, y2, frame)
    picture.box(x1, (y1 + y2) // 2, x2, (y1 + y2) // 2, frame)
    picture.box(x1 - 2, y2 + 2, x2 + 2, y2 + 2, (150, 140, 130))


# --- surfaces that repeat -------------------------------------------------

def brick():
    p = Picture(32, 32, (192, 176, 160), 3)
    for row in range(4):
        shift = 8 if row % 2 else 0
        for column in range(-1, 2):
            x = column * 16 + shift
            tone = 150 + p.random(30)
            p.box(x, row * 8, x + 14, row * 8 + 6, (tone, tone // 2 - 5, tone // 3))
            if x + 14 >= 32:
                p.box(x - 32, row * 8, x - 18, row * 8 + 6, (tone, tone // 2 - 5, tone // 3))
    p.noise(6)
    return p


def plaster():
    p = Picture(32, 32, (232, 222, 196), 5)
    p.noise(7)
    return p


def stone():
    p = Picture(32, 32, (120, 116, 108), 7)
    for row in range(4):
        x = -(row * 5 % 9)
        while x < 32:
            width = 7 + p.random(5)
            tone = 150 + p.random(40)
            p.box(x, row * 8, x + width - 2, row * 8 + 6, (tone, tone - 4, tone - 14))
            x += width
    p.noise(6)
    return p


def wood():
    p = Picture(32, 32, (140, 92, 52), 11)
    for board in range(4):
        tone = p.random(24)
        p.box(board * 8, 0, board * 8 + 6, 31, (138 + tone, 90 + tone, 50 + tone // 2))
        p.box(board * 8 + 7, 0, board * 8 + 7, 31, (84, 54, 30))
        p.line(board * 8 + 2 + p.random(3), 0, board * 8 + 2 + p.random(3), 31, (120, 76, 42))
    p.noise(5)
    return p


def scales(light, dark, seed):
    """Rows of rounded roof tiles."""
    p = Picture(32, 32, dark, seed)
    for row in range(4):
        shift = 4 if row % 2 else 0
        for column in range(-1, 4):
            x = column * 8 + shift
            tone = p.random(24)
            colour = tuple(c + tone for c in light)
            for left in (x, x - 32):
                p.box(left, row * 8, left + 6, row * 8 + 5, colour)
                p.box(left + 1, row * 8 + 6, left + 5, row * 8 + 6, colour)
    p.noise(5)
    return p


def tiles():
    return scales((172, 72, 44), (96, 36, 24), 13)


def slate():
    return scales((84, 92, 108), (48, 52, 64), 17)


def thatch():
    p = Picture(32, 32, (176, 148, 88), 19)
    for _ in range(90):
        x, y, tone = p.random(32), p.random(32), p.random(50)
        p.line(x, y, x, y + 5, (150 + tone, 124 + tone, 70 + tone))
    p.box(0, 15, 31, 15, (130, 104, 58))
    p.box(0, 31, 31, 31, (130, 104, 58))
    p.noise(6)
    return p


def grass():
    p = Picture(32, 32, (92, 140, 60), 23)
    for _ in range(60):
        x, y = p.random(32), p.random(32)
        p.line(x, y, x, y + 1, (76 + p.random(40), 124 + p.random(36), 48 + p.random(20)))
    p.noise(8)
    return p


def metal():
    p = Picture(32, 32, (168, 176, 184), 29)
    p.noise(4)
    p.box(0, 0, 31, 0, (128, 136, 144))
    p.box(0, 0, 0, 31, (128, 136, 144))
    for y in range(4, 32, 8):
        p.dot(2, y, (104, 112, 120))
        p.dot(29, y, (104, 112, 120))
    return p


def water():
    p = Picture(32, 32, (64, 112, 160), 31)
    for _ in range(24):
        x, y = p.random(32), p.random(32)
        for i in range(6):
            p.dot((x + i) % 32, y, (112, 156, 196))
    p.noise(5)
    return p


def canvas():
    """Broad upright stripes, the same from left and from right."""
    p = Picture(32, 32, (244, 240, 224), 37)
    p.box(0, 0, 7, 31, (200, 48, 48))
    p.box(24, 0, 31, 31, (200, 48, 48))
    p.noise(3)
    return p


def wicker():
    p = Picture(32, 32, (148, 108, 60), 41)
    for y in range(0, 32, 4):
        for x in range(0, 32, 8):
            left = x + (4 if y % 8 else 0)
            p.box(left, y, left + 3, y + 2, (196, 152, 92))
    p.noise(6)
    return p


def asphalt():
    """A road seen from above, driving direction upwards."""
    p = Picture(32, 32, (84, 84, 88), 43)
    p.noise(7)
    p.box(0, 0, 0, 31, (176, 172, 160))
    p.box(31, 0, 31, 31, (176, 172, 160))
    p.box(2, 0, 2, 31, (216, 216, 208))
    p.box(29, 0, 29, 31, (216, 216, 208))
    p.box(15, 4, 16, 18, (232, 232, 220))
    return p


# --- pictures that fill one face ------------------------------------------

def front():
    """The door side of a house."""
    p = Picture(64, 64, (232, 222, 196), 47)
    p.noise(5)
    p.box(0, 58, 63, 63, (140, 132, 120))
    p.box(0, 0, 63, 2, (112, 80, 52))
    p.box(26, 26, 37, 62, (112, 72, 44))
    p.frame(25, 25, 38, 63, (84, 56, 36))
    p.box(28, 29, 35, 36, (120, 152, 184))
    p.box(35, 46, 36, 47, (224, 196, 96))
    window(p, 7, 24, 17, 42)
    window(p, 46, 24, 56, 42)
    return p


def side():
    """The window side of a house."""
    p = Picture(64, 64, (232, 222, 196), 53)
    p.noise(5)
    p.box(0, 58, 63, 63, (140, 132, 120))
    p.box(0, 0, 63, 2, (112, 80, 52))
    window(p, 11, 24, 23, 42)
    window(p, 40, 24, 52, 42)
    return p


def gable():
    """Timber framing; the middle of the lower edge carries a small window."""
    p = Picture(64, 64, (232, 222, 196), 59)
    p.noise(5)
    beam = (104, 72, 44)
    p.box(0, 60, 63, 63, beam)
    p.box(0, 38, 63, 40, beam)
    p.box(30, 0, 33, 36, beam)
    for x in (16, 45):
        p.box(x, 0, x + 2, 63, beam)
    window(p, 27, 45, 36, 56)
    return p


def hall():
    """The front of a brick hall: a wide door and tall windows."""
    p = Picture(64, 64, (168, 84, 60), 61)
    for y in range(0, 64, 4):
        p.box(0, y, 63, y, (148, 72, 52))
    p.noise(6)
    p.box(0, 60, 63, 63, (140, 132, 120))
    p.box(26, 34, 37, 62, (96, 60, 40))
    p.frame(25, 33, 38, 63, (224, 216, 196))
    p.box(31, 34, 32, 62, (64, 40, 28))
    for x in (6, 16, 42, 52):
        window(p, x, 32, x + 5, 52)
    return p


def church():
    """A stone wall with a pointed window."""
    p = stone()
    q = Picture(64, 64, (0, 0, 0), 67)
    for y in range(64):
        for x in range(64):
            q.rows[y][x] = p.rows[y % 32][x % 32]
    for y in range(14, 52):
        half = 7 if y >= 24 else max(0, 7 - (24 - y) * 7 // 10)
        q.box(32 - half - 2, y - 1, 31 + half + 2, y, (212, 206, 192))
    for y in range(15, 51):
        half = 7 if y >= 24 else max(0, 7 - (24 - y) * 7 // 10)
        q.box(32 - half, y, 31 + half, y, (64, 88, 128))
    q.box(31, 15, 32, 50, (212, 206, 192))
    q.box(25, 34, 38, 35, (212, 206, 192))
    return q


def barn():
    """Boards with a two-leaf gate."""
    p = wood()
    q = Picture(64, 64, (0, 0, 0), 71)
    for y in range(64):
        for x in range(64):
            q.rows[y][x] = p.rows[y % 32][x % 32]
    q.box(16, 18, 47, 63, (120, 40, 32))
    q.frame(15, 17, 48, 63, (232, 228, 216))
    q.box(31, 18, 32, 63, (232, 228, 216))
    q.line(16, 18, 30, 62, (232, 228, 216))
    q.line(47, 18, 33, 62, (232, 228, 216))
    return q


def dial():
    """A clock face for the church tower."""
    p = Picture(32, 32, (48, 52, 64), 73)
    p.disc(32, 32, 30, (224, 196, 96))
    p.disc(32, 32, 26, (244, 240, 224))
    for x, y in ((15, 4), (15, 26), (4, 15), (26, 15)):
        p.box(x, y, x + 1, y + 1, (32, 32, 32))
    p.line(15, 15, 15, 6, (32, 32, 32), 2)
    p.line(15, 15, 21, 19, (32, 32, 32), 2)
    return p


def flag():
    """Three level stripes with a disc: the same from both sides."""
    p = Picture(32, 32, (240, 240, 240), 79)
    p.box(0, 0, 31, 9, (32, 88, 168))
    p.box(0, 22, 31, 31, (32, 88, 168))
    p.disc(32, 32, 9, (232, 176, 32))
    return p


def digit():
    """One clock digit with all its bars lit."""
    p = Picture(32, 32, (24, 24, 24), 83)
    red = (248, 64, 40)
    for y in (3, 14, 25):
        p.box(9, y, 22, y + 3, red)
    for y in (5, 17):
        p.box(6, y, 9, y + 9, red)
        p.box(22, y, 25, y + 9, red)
    return p


def colon():
    """The separator of clock digits."""
    p = Picture(32, 32, (24, 24, 24), 89)
    p.box(11, 8, 20, 12, (248, 64, 40))
    p.box(11, 20, 20, 24, (248, 64, 40))
    return p


def board(text, x, ground, ink):
    p = Picture(64, 32, ground, 97)
    p.frame(1, 1, 62, 30, ink)
    letters(p, text, x, 9, 2, ink)
    return p


def inn():
    return board("INN", 15, (32, 72, 48), (240, 224, 144))


def fair():
    return board("FAIR", 9, (168, 32, 40), (248, 240, 200))


def mill():
    return board("MILL", 9, (232, 224, 196), (72, 56, 40))


def wheel():
    """A fairground wheel: spokes, rings and cabins. The picture is the disc."""
    p = Picture(64, 64, (196, 216, 232), 101)
    steel = (72, 76, 96)
    p.disc(64, 64, 62, steel)
    p.disc(64, 64, 58, (196, 216, 232))
    p.disc(64, 64, 40, steel)
    p.disc(64, 64, 36, (196, 216, 232))
    ring = [(31, 4), (45, 8), (55, 17), (59, 31), (55, 45), (45, 55),
            (31, 59), (17, 55), (7, 45), (4, 31), (7, 17), (17, 8)]
    for x, y in ring:
        p.line(31, 31, x, y, steel)
    cabins = [(216, 56, 48), (240, 196, 48), (56, 136, 72)]
    for i, (x, y) in enumerate(ring):
        p.box(x - 2, y - 2, x + 3, y + 3, cabins[i % 3])
    p.disc(64, 64, 10, (216, 56, 48))
    return p


def millwheel():
    """A wooden wheel with eight spokes. The picture is the disc."""
    p = Picture(64, 64, (84, 96, 104), 103)
    oak = (128, 88, 52)
    p.disc(64, 64, 62, oak)
    p.disc(64, 64, 46, (84, 96, 104))
    for x1, y1, x2, y2 in ((31, 4, 31, 59), (4, 31, 59, 31), (11, 11, 51, 51), (51, 11, 11, 51)):
        p.line(x1, y1, x2, y2, oak, 2)
    p.disc(64, 64, 14, (96, 64, 36))
    p.noise(6)
    return p


def rim():
    """The tread of a wheel: cross boards."""
    p = Picture(32, 32, (104, 72, 44), 107)
    p.box(0, 0, 31, 3, (64, 44, 28))
    p.box(0, 16, 31, 19, (64, 44, 28))
    p.noise(6)
    return p


def hedge():
    p = Picture(32, 32, (48, 92, 40), 109)
    for _ in range(110):
        x, y = p.random(32), p.random(32)
        p.box(x, y, x + 1, y + 1, (36 + p.random(40), 80 + p.random(60), 28 + p.random(24)))
    return p


def tree():
    """A trimmed tree that fills its whole rectangle, on a short stem."""
    p = Picture(64, 64, (48, 96, 40), 113)
    for _ in range(420):
        x, y = p.random(64), p.random(56)
        p.box(x, y, x + 2, y + 1, (36 + p.random(44), 84 + p.random(64), 28 + p.random(28)))
    p.box(0, 54, 63, 63, (92, 140, 60))
    p.box(28, 52, 35, 63, (100, 72, 44))
    return p


VILLAGE = [brick, stone, wood, tiles, slate, thatch, grass, metal, water, canvas, wicker, asphalt,
           front, side, gable, hall, church, barn, dial, flag, digit, colon, inn, fair, wheel, rim]
HAMLET = [plaster, stone, wood, tiles, slate, thatch, grass, metal, canvas, wicker, asphalt,
          front, side, gable, barn, mill, millwheel, rim, hedge, tree]


def main():
    for folder, pictures in (("village", VILLAGE), ("hamlet", HAMLET)):
        (HERE / folder).mkdir(exist_ok=True)
        for draw in pictures:
            draw().save(HERE / folder / (draw.__name__ + ".bmp"))


if __name__ == "__main__":
    main()
