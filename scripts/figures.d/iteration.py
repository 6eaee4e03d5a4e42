"""What the 31 passes of the way back from geocentric coordinates lose, by latitude and height."""

from engine import BATCH, WGS84
from places import EAST, WEST, apart, grid

LATITUDES = ("33.1", "35", "36", "37", "38", "38.6", "39", "40", "42")
HEIGHTS = ("0", "2000")


def significant(value):
    """A format with one digit where there are decimals; none above 10."""
    if value >= 10:
        return "%.0f"
    decimals = 0
    while value and value * 10**decimals < 0.95:
        decimals += 1
    return f"%.{decimals}f"


def geographic(kelvo, points):
    """To geocentric coordinates and back, on WGS84 with no shift at all."""
    forward = kelvo.answers([f"GeoToXYZ {p:.17g} {l:.17g} {h:.17g} {WGS84}" for p, l, h in points])
    back = kelvo.answers([f"XYZToGeo {x:.17g} {y:.17g} {z:.17g} {WGS84}" for *_, x, y, z in forward])
    return [tuple(b[-3:]) for b in back]


def there_and_back(kelvo, points, kind=BATCH):
    return kelvo.to_wgs(kelvo.to_user(points, kind), kind)


def loss(before, after):
    """Metres north, east and up, without sign."""
    return *(abs(x) for x in apart(before, after)), abs(after[2] - before[2])


def fails_from(kelvo, height):
    """The latitude from which a WGS84 point on 127.5 can't be converted, to a thousandth."""
    low, high = 45.0, 50.0
    while high - low > 0.0005:
        middle = (low + high) / 2
        lines = kelvo.transcript(["SetDatumPara 115.8 -474.99 -674.11 1.16 -2.31 -1.63 -6.43 1",
                                  f"WgsToUser {middle} 127.5 {height} 6377397.155 299.1528128"])  # fmt: skip
        low, high = (low, middle) if lines[1].startswith("message") else (middle, high)
    return high


def of_kelvo(kelvo):
    for h in HEIGHTS:
        for latitude in LATITUDES:
            at = [(float(latitude), 127.5, float(h))]
            north, _, up = loss(at[0], geographic(kelvo, at)[0])
            for name, metres in (("north", north), ("up", up)):
                yield f"iteration.{name}.{latitude}.{h}", 1000 * metres, significant(1000 * metres)
            line = [(float(latitude), l / 10, float(h)) for l in range(round(WEST * 10), round(EAST * 10) + 1)]
            losses = [loss(b, a) for b, a in zip(line, there_and_back(kelvo, line))]
            for name, worst in (("back", max(x[0] for x in losses)), ("backup", max(x[2] for x in losses))):
                yield f"iteration.{name}.{latitude}.{h}", 1000 * worst, significant(1000 * worst)
        yield f"iteration.fails.{h}", fails_from(kelvo, h), "%.2f"
    box = [(p, l, 2000.0) for p, l in grid(0.1)]
    losses = [loss(b, a) for b, a in zip(box, there_and_back(kelvo, box))]
    yield "iteration.back.east", 1000 * max(x[1] for x in losses), "%.1f"
