"""What printed heights are worth: against EGM96, and without the geoid's eastern rows."""

from engine import BATCH, GRS80, PANEL, PRESETS, wgs_lines
from places import PLACES, grid, land

# The stored geoid, whole: latitude, longitude, height above Bessel and above WGS84, weight. Rows
# are by latitude 34 to 38 on the meridians 126 to 130; the program reads the first three meridians.
_BESSEL = (-50, -55, -60, -64, -65, -46, -49, -56, -63, -65, -43, -45, -52, -58, -62,
           -42, -42, -47, -52, -60, -42, -42, -44, -48, -53)  # fmt: skip
_WGS = (24.5, 23.8, 23.3, 22.7, 22.9, 26.2, 26.0, 25.0, 24.0, 23.8, 27.8, 28.5, 28.0, 27.0, 25.8,
        28.8, 29.3, 29.7, 28.8, 27.0, 29.3, 29.4, 29.4, 28.9, 27.8)  # fmt: skip
_WEIGHTS = (3, 2, 2, 2, 3, 2, 1, 1, 1, 2, 2, 1, 1, 1, 2, 2, 1, 1, 1, 2, 3, 2, 2, 2, 3)


def stored_geoid(point, heights, count):
    above = below = 0.0
    for i in range(count):
        d2 = (point[0] - 34 - i % 5) ** 2 + (point[1] - 126 - i // 5) ** 2 or 1e-10
        above += heights[i] * _WEIGHTS[i] / d2
        below += _WEIGHTS[i] / d2
    return above / below


def printed(kelvo, points, kind, **shift):
    """The orthometric height of points whose ellipsoidal height is 0."""
    user = kelvo.to_user([(p, l, 0.0) for p, l in points], kind, **shift)
    return [u[2] - n for u, n in zip(user, kelvo.geoid(user))]


def against_egm96(kelvo, proj, points, kind, **shift):
    """How far the printed height stands above that of EGM96."""
    return [h + n for h, n in zip(printed(kelvo, points, kind, **shift), proj.egm96(points))]


EASTERN = ("busan", "pohang", "dokdo", "ulleung", "gangneung", "seoul", "jeju")
IN_TABLE = ("baengnyeong", "incheon", "seoul", "gangneung", "daejeon", "pohang", "busan", "mokpo", "jeju", "dokdo")


def of_kelvo(kelvo):
    for name in EASTERN:
        p, l, *_ = PLACES[name]
        for table, heights in (("bessel", _BESSEL), ("wgs", _WGS)):
            used = stored_geoid((p, l), heights, 15)
            program = kelvo.geoid([(p, l)], bessel=table == "bessel")[0]
            if abs(used - program) > 1e-9:
                raise RuntimeError(f"the geoid at {name}: {program}, not {used}")
            yield f"geoid.east.{table}.{name}", stored_geoid((p, l), heights, 25) - used, "%.1f"
    yield "geoid.rows", 15, "%d"


def of_proj(kelvo, proj):
    points = [PLACES[name][:2] for name in IN_TABLE]
    report = kelvo.run(["INPUT deg"] + wgs_lines([(p, l, 100.0) for p, l in points]))
    geoid = proj.egm96(points)
    untouched = [report.tm[f"p{i}"][2] - (100 - n) for i, n in enumerate(geoid)]
    panel = against_egm96(kelvo, proj, points, PANEL)
    wgs = [n - g for n, g in zip(geoid, kelvo.geoid(points, bessel=False))]
    for i, name in enumerate(IN_TABLE):
        yield f"height.run.{name}", untouched[i], "%.0f"
        yield f"height.panel.{name}", panel[i], "%.0f"
        yield f"height.wgs.{name}", wgs[i], "%.1f"
        yield f"height.egm96.{name}", geoid[i], "%.1f"
    where = land()
    for name, kind in (("run", BATCH), ("panel", PANEL)):
        yield from ends(f"height.{name}.land", against_egm96(kelvo, proj, where, kind), "%.0f")
    yield from ends("height.run.box", against_egm96(kelvo, proj, grid(0.1), BATCH), "%.0f")
    wgs = [n - g for n, g in zip(proj.egm96(where), kelvo.geoid(where, bessel=False))]
    yield from ends("height.wgs.land", wgs, "%.1f")
    modern = against_egm96(kelvo, proj, where, BATCH, seven="0 0 0 0 0 0 0", ellipsoid=GRS80)
    yield from ends("height.grs80.land", modern, "%.0f")
    # The older parameters, three shifts each, have no scale to lose.
    for name, seven in PRESETS.items():
        yield from ends(f"height.{name}.land", against_egm96(kelvo, proj, where, BATCH, seven=seven), "%.0f")


def ends(name, values, form):
    yield f"{name}.least", min(values), form
    yield f"{name}.most", max(values), form
