"""The seven parameters: signs, the two kinds, the presets, and the official transformation."""

import math

from engine import BATCH, PANEL, PRESETS, wgs_lines
from places import distance, grid, land

OFFICIAL = 5191  # Korean 1985 to WGS 84 (1), Molodensky-Badekas with coordinate frame signs


def at(points, height=50.0):
    return [(p, l, height) for p, l in points]


def differences(one, other):
    return [distance(a, b) for a, b in zip(one, other)]


def of_kelvo(kelvo):
    box = at(grid(0.1))
    run, panel = kelvo.to_user(box, BATCH), kelvo.to_user(box, PANEL)
    yield "kinds.latitude", max(abs(a[0] - b[0]) * 110_950 for a, b in zip(run, panel)), "%.2f"
    yield "kinds.longitude", max(abs(a[1] - b[1]) * 111_300 * math.cos(math.radians(a[0])) for a, b in zip(run, panel)), "%.3f"
    yield "kinds.height.least", min(a[2] - b[2] for a, b in zip(run, panel)), "%.2f"
    yield "kinds.height.most", max(a[2] - b[2] for a, b in zip(run, panel)), "%.2f"
    yield "kinds.height", max(a[2] - b[2] for a, b in zip(run, panel)), "%.0f"
    without = kelvo.to_user(box, BATCH, seven="115.8 -474.99 -674.11 1.16 -2.31 -1.63 0")
    yield "kinds.scale", 1000 * max(differences(run, without)), "%.1f"
    back = kelvo.to_wgs(kelvo.to_user(box, BATCH), BATCH)
    yield "kinds.back.east", 1000 * max(abs(a[1] - b[1]) * 111_300 * math.cos(math.radians(a[0])) for a, b in zip(box, back)), "%.1f"

    # One and the same point in a run and in the panel as it first opens, nothing set by hand.
    phi, lam, h, *_ = 37.5, 127.0, 100.0
    report = kelvo.run(["INPUT deg"] + wgs_lines([(phi, lam, h)]))
    script = ["click optWdeg", f"type txtWdegPhi {phi}", f"type txtWdegLam {lam}", f"type txtWdegTH {h}",
              "click cmdW2B", "click cmdGP2TM"]  # fmt: skip
    shown = [float(text) for text in kelvo.panel(script, ("txtX", "txtY", "txtH", "txtwH"))]
    x, y, height = report.tm["p0"]
    yield "panel.x", abs(x - shown[0]), "%.2f"
    yield "panel.y", abs(y - shown[1]), "%.3f"
    yield "panel.height", height - shown[2], "%.0f"
    yield "panel.run.height", height, "%.1f"
    yield "panel.panel.height", shown[2], "%.1f"
    yield "panel.wgs.height", shown[3], "%.1f"

    where = at(land())
    run, panel = kelvo.to_user(where, BATCH), kelvo.to_user(where, PANEL)
    turned = kelvo.to_user(where, PANEL, seven="115.8 -474.99 -674.11 -1.16 2.31 1.63 -6.43")
    yield "signs.rotations.least", min(differences(panel, turned)), "%.0f"
    yield "signs.rotations.most", max(differences(panel, turned)), "%.0f"
    turned = kelvo.to_user(where, PANEL, seven="-115.8 474.99 674.11 -1.16 2.31 1.63 6.43")
    yield "signs.all.least", min(differences(panel, turned)), "%.0f"
    yield "signs.all.most", max(differences(panel, turned)), "%.0f"
    for name, seven in PRESETS.items():
        off = differences(run, kelvo.to_user(where, BATCH, seven=seven))
        yield f"presets.{name}.least", min(off), "%.1f"
        yield f"presets.{name}.most", max(off), "%.1f"
    none = differences([(p, l) for p, l, _ in where], panel)
    yield "shift.least", min(none), "%.0f"
    yield "shift.most", max(none), "%.0f"


def turned(parameters):
    """The register's values with Kelvo's direction: all signs the other way."""
    t = [-parameters[f"{axis}-axis translation"] for axis in "XYZ"]
    r = [-parameters[f"{axis}-axis rotation"] for axis in "XYZ"]
    return t, r, -parameters["Scale difference"]


def without_pivot(parameters):
    """Seven parameters with no evaluation point that move it as the official ones do."""
    t, r, s = turned(parameters)
    pivot = [parameters[f"Ordinate {i} of evaluation point"] for i in (1, 2, 3)]
    x, y, z = (p - d for p, d in zip(pivot, t))  # the evaluation point on WGS84
    o, p, k = (math.radians(angle / 3600) for angle in r)
    w = 1 + s * 1e-6
    rotated = (w * (x + k * y - p * z), w * (-k * x + y + o * z), w * (p * x - o * y + z))
    return [a - b for a, b in zip(pivot, rotated)], r, s


def text(translations, rotations, scale, decimals):
    return " ".join([*(f"{t:.{decimals}f}" for t in translations), *(f"{r:.3f}" for r in rotations), f"{scale:.3f}"])


def of_proj(kelvo, proj):
    where = at(land())
    official = proj.cs2cs("EPSG:4326", "EPSG:4162", where)
    run, panel = kelvo.to_user(where, BATCH), kelvo.to_user(where, PANEL)
    for name, found in (("run", run), ("panel", panel)):
        off = differences(official, found)
        yield f"official.{name}.least", min(off), "%.2f"
        yield f"official.{name}.most", max(off), "%.2f"
    for name, seven in PRESETS.items():
        off = differences(official, kelvo.to_user(where, BATCH, seven=seven))
        yield f"official.{name}.least", min(off), "%.1f"
        yield f"official.{name}.most", max(off), "%.1f"
    parameters = proj.parameters(OFFICIAL)
    for name, value in zip(("south", "west", "north", "east"), proj.area(OFFICIAL)):
        yield f"official.{name}", value, "%.2f"
    yield "official.accuracy", proj.accuracy(OFFICIAL), "%.0f"
    badekas = text(*turned(parameters), 3)
    yield "badekas.typed", badekas, "%s"
    off = differences(official, kelvo.to_user(where, BATCH, seven=badekas))
    yield "badekas.least", min(off), "%.1f"
    yield "badekas.most", max(off), "%.1f"
    translations, rotations, scale = without_pivot(parameters)
    yield "equivalent.shift", " ".join(f"{t:.4f}" for t in translations), "%s"
    yield "equivalent.rotation", " ".join(f"{r:.3f}" for r in rotations), "%s"
    yield "equivalent.scale", scale, "%.3f"
    equivalent = text(translations, rotations, scale, 4)
    south = [point for point in where if point[0] < 38]
    for name, kind in (("panel", PANEL), ("run", BATCH)):
        off = differences(official, kelvo.to_user(where, kind, seven=equivalent))
        yield f"equivalent.{name}.most", max(off), "%.3f" if kind == PANEL else "%.2f"
    off = differences(proj.cs2cs("EPSG:4326", "EPSG:4162", south), kelvo.to_user(south, PANEL, seven=equivalent))
    yield "equivalent.south.most", max(off), "%.3f"
