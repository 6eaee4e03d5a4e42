"""Each column of a report against the official system of the same definition, run by run."""

import math
import pathlib
import re

from engine import BATCH, PANEL, wgs_lines
from places import distance, land

# Name, lines of the data file, EPSG code, and which points; the name without its last letter is
# the zone, "j" being Jeju. The codes' own axes are northing, easting.
TM = (
    ("1s", [], 5173, lambda l: l < 126),
    ("2s", [], 5174, lambda l: 126 <= l <= 128),
    ("3s", [], 5176, lambda l: 128 < l <= 130),
    ("4s", [], 5177, lambda l: l > 130),
    ("js", ["zone 5"], 5175, None),
    ("1p", ["add 0"], 2098, lambda l: l < 126),
    ("2p", ["add 0"], 2097, lambda l: 126 <= l <= 128),
    ("3p", ["add 0"], 2096, lambda l: 128 < l <= 130),
    ("4p", ["add 0"], 5167, lambda l: l > 130),
    ("jp", ["zone 5", "add 0"], 5168, None),
)
WGS_UTM = (("w", 32651, lambda l: l < 126), ("e", 32652, lambda l: l >= 126))
# Today's grids on GRS80: seven zeros, GRS80, an origin of one's own, no seconds.
KOREA2000 = (
    (5185, 125, lambda l: l < 126),
    (5186, 127, lambda l: 126 <= l <= 128),
    (5187, 129, lambda l: 128 < l <= 130),
    (5188, 131, lambda l: l > 130),
)
MODERN = ["7 para", "0 0 0", "0 0 0", "0", "add 0", "tm para", "6378137 298.257222101"]

# What a run does, for cct: kind 1 as a run computes it, kind 2 as the panel does. Longitude first.
_HEAD = "+proj=pipeline +step +proj=unitconvert +xy_in=deg +xy_out=rad +step +proj=cart +ellps=WGS84"
_HELMERT = ("+step +proj=helmert +x=115.8 +y=-474.99 +z=-674.11 +rx=1.16 +ry=-2.31 +rz=-1.63"
            " +s={scale} +convention=coordinate_frame")  # fmt: skip
_BESSEL = "+a=6377397.155 +rf=299.1528128"
_BACK = f"+step +inv +proj=cart {_BESSEL}"
_TM = f"+step +proj=tmerc +lat_0=38 +lon_0=127.00289027777778 +k=1 +x_0=200000 +y_0=500000 {_BESSEL}"
_DEGREES = "+step +proj=unitconvert +xy_in=rad +xy_out=deg"


def pipeline(kind, grid=False):
    shift = _HELMERT.format(scale="0" if kind == BATCH else "-6.43")
    return " ".join((_HEAD, shift, _BACK, _TM if grid else _DEGREES))


def jeju():
    """A grid over the island."""
    return [(33.2 + i * 0.07, 126.15 + j * 0.08) for i in range(6) for j in range(11)]


def towgs84():
    """The shift as bench/compare_cs2cs gives it to cs2cs."""
    script = (pathlib.Path(__file__).resolve().parents[2] / "bench/compare_cs2cs").read_text(encoding="utf-8")
    return re.search(r'^bessel=".*towgs84=([-0-9.,]+)', script, re.M).group(1)


def of_kelvo(_):
    # The pages print the pipelines; what they give is held below.
    yield "pipeline.run", pipeline(BATCH), "%s"
    yield "pipeline.grid", _TM, "%s"
    yield "towgs84", towgs84(), "%s"


def of_proj(kelvo, proj):
    points = [(p, l, 50.0) for p, l in land()]
    for name, lines, code, chosen in TM:
        where = [(p, l, 50.0) for p, l in jeju()] if chosen is None else [p for p in points if chosen(p[1] + 0.002)]
        report = kelvo.run(["INPUT deg", *lines, *wgs_lines(where)])
        found = [report.tm[f"p{i}"] for i in range(len(where))]
        rounded = [(float(f"{p:.10f}"), float(f"{l:.10f}"), h) for p, l, h in where]
        official = proj.cs2cs("EPSG:4326", f"EPSG:{code}", rounded)
        yield f"tm.{name}.wgs", max(math.dist(f[:2], o[:2]) for f, o in zip(found, official)), "%.2f"
        user = [report.user[f"p{i}"] for i in range(len(where))]
        official = proj.cs2cs("EPSG:4162", f"EPSG:{code}", user)
        yield f"tm.{name}.grid", 1000 * max(math.dist(f[:2], o[:2]) for f, o in zip(found, official)), "%.2f"
    report = kelvo.run(["INPUT deg", *wgs_lines(points)])
    for name, code, chosen in WGS_UTM:
        pairs = [(report.wgsutm[f"p{i}"], p) for i, p in enumerate(points) if chosen(p[1])]
        official = proj.cs2cs("EPSG:4326", f"EPSG:{code}", [p for _, p in pairs])
        # These systems have easting first.
        yield f"utm.{name}", 1000 * max(math.dist(f[:2], (o[1], o[0])) for (f, _), o in zip(pairs, official)), "%.4f"
    user = [report.user[f"p{i}"] for i in range(len(points))]
    official = proj.cs2cs("EPSG:4326", "EPSG:4162", points)
    yield "user.wgs", max(distance(o, u) for o, u in zip(official, user)), "%.2f"

    for code, meridian, chosen in KOREA2000:
        where = [p for p in points if chosen(p[1])]
        report = kelvo.run(["INPUT deg", *MODERN, f"38 {meridian}", "600000 200000", "1", *wgs_lines(where)])
        official = proj.cs2cs("EPSG:4326", f"EPSG:{code}", where)
        yield f"modern.{code}", max(math.dist(report.tm[f"p{i}"][:2], o[:2]) for i, o in enumerate(official)), "%.3f"
    report = kelvo.run(["INPUT deg", *MODERN, "38 127.5", "2000000 1000000", "0.9996", *wgs_lines(points)])
    official = proj.cs2cs("EPSG:4326", "EPSG:5179", points)
    yield "modern.5179", max(math.dist(report.tm[f"p{i}"][:2], o[:2]) for i, o in enumerate(official)), "%.3f"

    for name, kind in (("run", BATCH), ("panel", PANEL)):
        for area, where in (("south", [p for p in points if p[0] < 37]), ("all", points)):
            user = kelvo.to_user(where, kind)
            steps = proj.cct(pipeline(kind), where)
            value = 1000 * max(distance((s[1], s[0]), u) for s, u in zip(steps, user))
            yield f"pipeline.{name}.{area}", value, "%.1f" if value < 10 else "%.0f"
    bessel = f"+proj=latlong {_BESSEL} +towgs84={towgs84()} +no_defs"
    there = proj.cs2cs("+proj=latlong +ellps=WGS84 +towgs84=0,0,0 +no_defs", bessel, [(l, p, h) for p, l, h in points])
    value = 1000 * max(distance((t[1], t[0]), u) for t, u in zip(there, kelvo.to_user(points, PANEL)))
    yield "towgs84.panel", value, "%.1f"
    centre = [p for p in points if 126 <= p[1] <= 127.9 and p[0] < 37]
    report = kelvo.run(["INPUT deg", *wgs_lines(centre)])
    steps = proj.cct(pipeline(BATCH, grid=True), centre)
    found = [report.tm[f"p{i}"] for i in range(len(centre))]
    yield "pipeline.grid.south", 1000 * max(math.dist(f[:2], (s[1], s[0])) for f, s in zip(found, steps)), "%.1f"
