"""The design files that are measured: as many objects as a file can hold, of the kinds that write most."""

MOST_OBJECTS = 70


def textured(first, last, name):
    return [line for slot in range(first, last + 1) for line in ('K%02dY' % slot, 'F%02d%s' % (slot, name))]


def cells(values):
    return ['P%02d %d' % value for value in sorted(values.items())]


def point(slot, x, y):
    return 'Q%03d%4d%4d' % (slot, x, y)


def whole_picture(slot, shift=0):
    """The texture positions of a face with four corners, from slot `slot` on."""
    corners = ((0, 255), (0, 0), (255, 0), (255, 255))
    return [point(slot + i, x + shift, y + shift) for i, (x, y) in enumerate(corners)]


def place(i):
    return ['C%d' % (60000 * (i % 10) - 270000), 'D%d' % (60000 * (i // 10) - 180000)]


def envelope(i):
    """A sphere with basket: seven rings of 20 corners, both sides textured."""
    heights = {1: 3100, 2: 5800, 3: 7700, 4: 8300, 5: 7600, 6: 5700, 7: 4600, 8: 2300}
    diameters = {9: 23400, 10: 40200, 11: 52800, 12: 58600, 13: 54600, 14: 42200, 15: 26400}
    basket = {16: 4600, 17: 3500, 18: 7800, 29: 1}
    lines = ['A12', 'BBalloon %d' % i] + place(i)
    lines += cells({**heights, **diameters, **basket, 19: 0, 20: 4, 58: 10000 + 100 * i, 61: i})
    lines += textured(1, 6, 'scenery/airfield/balloons/canvas_with_stripes')
    lines += textured(7, 11, 'scenery/airfield/balloons/basket_of_wicker')
    lines += textured(12, 13, 'scenery/airfield/balloons/canvas_of_one_colour')
    for slot in range(1, 45, 4):
        lines += whole_picture(slot)
    for slot in (50, 53):
        lines += [point(slot, 255, 255), point(slot + 1, 128, 0), point(slot + 2, 0, 255)]
    return lines


def extrusion(i):
    """An extruded polygon of 20 corners, whose caps are n-gons."""
    shift = 5000
    outline = [(0, 3750), (1159, 3566), (2204, 3034), (3034, 2204), (3566, 1159)]
    for _ in range(3):
        outline += [(y, -x) for x, y in outline[-5:]]
    lines = ['A18', 'BTower %d' % i] + place(i)
    lines += cells({2: 10000 + 100 * i, 4: 0, 11: 20, 13: 0, 58: 10000 + 100 * i, 61: i})
    lines += textured(1, 20, 'scenery/airfield/towers/wall_of_grey_concrete')
    lines += textured(21, 22, 'scenery/airfield/towers/roof_with_gravel')
    for k, (x, y) in enumerate(outline, 1):
        lines += [point(k, x + shift, y + shift), point(20 + k, x // 2 + shift, y // 2 + shift)]
        lines += whole_picture(4 * k + 37, shift)
        for slot in (120, 140):
            lines.append(point(slot + k, 128 + x // 30 + shift, 128 - y // 30 + shift))
    return lines


def design(objects, count=MOST_OBJECTS):
    lines = [line for i in range(1, count + 1) for line in objects(i)]
    return ''.join(line + '\r\n' for line in ['J15'] + lines).encode()
