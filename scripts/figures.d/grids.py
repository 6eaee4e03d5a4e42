"""The grids: arithmetic against an exact projection, scale, convergence, origins, the 10.405 seconds."""

import math

from engine import BATCH, BESSEL, PANEL
from places import NORTH, SOUTH, WEST, degree_lengths, distance, grid

SECONDS = 10.405 / 3600
OFFSETS = (1, 2, 3, 4, 6, 8)


def tm(longitude, added=SECONDS):
    """The TM origin that Kelvo chooses for a longitude."""
    meridian = 125 if longitude < 126 else 127 if longitude <= 128 else 129 if longitude <= 130 else 131
    return f"500000 200000 38 {meridian + added:.17g} 1"


def utm(longitude):
    return f"0 500000 0 {123 if longitude < 126 else 129} 0.9996"


def small(value):
    """Two digits at most, however small the number."""
    decimals = 0
    while value and value * 10**decimals < 0.95:
        decimals += 1
    return f"%.{decimals}f"


def round_trip(kelvo, points, origin):
    origins = [origin(p[1]) for p in points]
    back = kelvo.from_grid(kelvo.to_grid(points, origins), origins)
    return 1000 * max(distance(b, a) for b, a in zip(points, back))


def factors(kelvo, latitude, offset):
    """Scale less 1 in ppm and convergence in minutes at an offset from the TM meridian, by steps of
    a hundred-thousandth of a degree."""
    step = 1e-5
    points = [(latitude - step, 127 + offset), (latitude + step, 127 + offset)]
    (x1, y1), (x2, y2) = kelvo.to_grid(points, ["500000 200000 38 127 1"] * 2)
    length = 2 * step * degree_lengths(latitude)[0]
    return (math.hypot(x2 - x1, y2 - y1) / length - 1) * 1e6, abs(math.degrees(math.atan2(y2 - y1, x2 - x1))) * 60


def of_kelvo(kelvo):
    country = grid(0.1)
    near = [(p, 127 + o / 20) for p in (SOUTH, 34, 35, 36, 37, 38, NORTH) for o in range(-20, 21)]
    value = round_trip(kelvo, near, lambda _: "500000 200000 38 127 1")
    yield "grid.back.tm.degree", value, small(value)
    value = round_trip(kelvo, country, tm)
    yield "grid.back.tm", value, small(value)
    value = round_trip(kelvo, country, utm)
    yield "grid.back.utm", value, small(value)
    islands = [(p, WEST) for p in (SOUTH, 35, 37, 37.96, NORTH)]
    value = round_trip(kelvo, islands, lambda _: "0 500000 0 129 0.9996")
    yield "grid.back.utm.islands", value, small(value)

    # Two values of the flattening of Bessel.
    one = kelvo.to_grid(country, [tm(p[1]) for p in country])
    other = kelvo.to_grid(country, [tm(p[1]) for p in country], "6377397.155 299.152813")
    value = 1000 * max(math.dist(a, b) for a, b in zip(one, other))
    yield "grid.flattening", value, small(value)

    # The 10.405 seconds.
    plain = kelvo.to_grid(country, [tm(p[1], 0) for p in country])
    moved = [(a[0] - b[0], b[1] - a[1]) for a, b in zip(one, plain)]
    yield "added.y.least", min(m[1] for m in moved), "%.0f"
    yield "added.y.most", max(m[1] for m in moved), "%.0f"
    yield "added.x.most", max(abs(m[0]) for m in moved), "%.1f"
    for latitude in ("33.5", "36", "38"):
        a, b = kelvo.to_grid([(float(latitude), 127.0)] * 2, [tm(127), tm(127, 0)])
        yield f"added.y.{latitude}", b[1] - a[1], "%.0f"

    # Scale and convergence at 36 degrees.
    for offset in ("0.5", "1", "1.5", "2"):
        scale, convergence = factors(kelvo, 36.0, float(offset))
        yield f"scale.{offset}", scale, "%.0f"
        yield f"convergence.{offset}", convergence, "%.0f"
    yield "scale.border.south", factors(kelvo, SOUTH, 1.0)[0], "%.0f"
    yield "scale.border.north", factors(kelvo, NORTH, 1.0)[0], "%.0f"

    # Origins.
    at_border = [(36.0, 126.0)] * 2
    (_, west), (_, east) = kelvo.to_grid(at_border, ["0 500000 0 123 0.9996", "0 500000 0 129 0.9996"])
    yield "origin.utm", abs(west - east) / 1000, "%.0f"
    (_, west), (_, east) = kelvo.to_grid(at_border, ["500000 200000 38 125 1", "500000 200000 38 127 1"])
    yield "origin.tm", abs(west - east) / 1000, "%.0f"
    border = [(SOUTH + i * (NORTH - SOUTH) / 20, 126.0, 0.0) for i in range(21)]
    apart = [(u[1] - 126) * 3600 for kind in (BATCH, PANEL) for u in kelvo.to_user(border, kind)]
    yield "border.seconds.least", min(apart), "%.2f"
    yield "border.seconds.most", max(apart), "%.2f"
    yield "border.metres.least", min(apart) / 3600 * degree_lengths(NORTH)[1], "%.0f"
    yield "border.metres.most", max(apart) / 3600 * degree_lengths(SOUTH)[1], "%.0f"

    # Lengths of a second.
    lengths = kelvo.answers(["ArcSecLen 37 127", "ArcSecLen 37 128"])
    yield "second.longitude", lengths[0][-1], "%.0f"
    yield "second.across", lengths[1][-1] / 1000, "%.0f"
    yield "printed.second", 0.1 * lengths[0][-2], "%.0f"

    # Directions with 57.29578 for 180/pi.
    east = kelvo.answers(["DistanceAndDirection 0 0 1e-9 10000"])[0]
    true = math.degrees(math.atan2(10000, 1e-9))
    yield "direction.seconds", (east[0] - true) * 3600, "%.3f"
    yield "direction.across", math.radians(east[0] - true) * 10000 * 1000, "%.2f"


def of_proj(kelvo, proj):
    a, rf = (float(x) for x in BESSEL.split())
    latitudes = [SOUTH + i * (NORTH - SOUTH) / 11 for i in range(12)]
    for offset in OFFSETS:
        points = [(p, 127 + offset * i / 16) for p in latitudes for i in range(-16, 17)]
        exact = proj.grid(points, 500000, 200000, 38, 127, 1, a, rf)
        found = kelvo.to_grid(points, ["500000 200000 38 127 1"] * len(points))
        value = 1000 * max(math.dist(e, f) for e, f in zip(exact, found))
        yield f"grid.exact.{offset}", value, small(value)
        back = kelvo.from_grid(exact, ["500000 200000 38 127 1"] * len(points))
        value = 1000 * max(distance(p, b) for p, b in zip(points, back))
        yield f"grid.exact.back.{offset}", value, small(value)
    points = [(p, l) for p, l in grid(0.1)]
    errors = []
    for meridian in (123, 129):
        where = [p for p in points if (p[1] < 126) == (meridian == 123)]
        exact = proj.grid(where, 0, 500000, 0, meridian, 0.9996, a, rf)
        found = kelvo.to_grid(where, [utm(p[1]) for p in where])
        errors += [1000 * math.dist(e, f) for e, f in zip(exact, found)]
    yield "grid.exact.utm", max(errors), small(max(errors))
