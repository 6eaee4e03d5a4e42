"""The correction by known points: rounding of weights, its reach, and points on a known point."""

import math
import pathlib
import random
import struct
import tempfile

from places import degree_lengths

TOP = pathlib.Path(__file__).resolve().parents[2]
LARGEST = struct.unpack("<f", b"\xff\xff\x7f\x7f")[0]  # of 32 bits


def dms(text):
    sign, digits = (-1, text[1:]) if text.startswith("-") else (1, text)
    degrees, _, rest = digits.partition(".")
    rest = rest.ljust(4, "0")
    return sign * (int(degrees) + int(rest[:2]) / 60 + float(f"{rest[2:4]}.{rest[4:] or 0}") / 3600)


def known_points():
    """Name, WGS84 latitude, longitude, height, user latitude, longitude, height, weight."""
    text = (TOP / "examples/kelvo.cor").read_bytes().decode("cp949")
    fields = [line.split() for line in text.splitlines()]
    return [(f[0], dms(f[1]), dms(f[2]), float(f[3]), dms(f[4]), dms(f[5]), float(f[6]), float(f[7]))
            for f in fields if len(f) == 8 and f[0] != "*"]  # fmt: skip


def single(x):
    return struct.unpack("<f", struct.pack("<f", x))[0]


def corrected(point, points, misses, rounding):
    above = below = 0.0
    for (_, p, l, *_, weight), miss in zip(points, misses):
        q = (p - point[0]) ** 2 * 1.2 + (l - point[1]) ** 2 or 1e-8
        w = rounding(weight / (q * q))
        above, below = above + w * miss, below + w
    return above / below


def height_corrections(kelvo, first, second):
    """The height correction of a point in two runs of one window, known points changed between."""
    data = "CORRECTION\\r\\nINPUT deg\\r\\nWGS x 36.4 127.4 100\\r\\nend\\r\\n\\r\\n"
    text = {name: "\\r\\n".join([*lines, "*", "*", ""]) for name, lines in (("first", first), ("second", second))}
    with tempfile.TemporaryDirectory() as folder:
        (pathlib.Path(folder) / "data").mkdir()
        (pathlib.Path(folder) / "kelvo.cor").write_text("*\r\n*\r\n", encoding="ascii")
        script = ["click mnuBatchEdit", f"type Richtxt {data}", "click cmdSave"]
        for name in ("first", "second"):
            script += ["click mnuCorrEdit", f"type Richtxt {text[name]}", "click cmdSave", "click mnuBatchGo",
                       "get PointTable(1).CorrH"]  # fmt: skip
        return [float(h) for h in kelvo.form(script, folder, "PointTable(1).CorrH")]


def of_kelvo(kelvo):
    # A known point loses its ellipsoidal height between two runs of one window.
    known = ["A 36.0000 127.0000 100 36.0000 127.0000 75 1", "B 36.3000 127.3000 100 36.3000 127.3000 70 1"]
    lost = [known[0], known[1].replace(" 100 ", " 0 ")]
    fresh = height_corrections(kelvo, lost, lost)
    kept = height_corrections(kelvo, known, lost)
    yield "slot.kept", abs(kept[1] - fresh[1]), "%.1f"

    points = known_points()
    # Misses of a metre, one way or the other, as coarse as a good network is here.
    draw = random.Random(5)
    worst = 0.0
    for _ in range(300):
        point = draw.uniform(33.5, 38), draw.uniform(126, 129.5)
        misses = [draw.choice((-1000.0, 1000.0)) for _ in points]
        worst = max(worst, abs(corrected(point, points, misses, single) - corrected(point, points, misses, float)))
    yield "weight.rounding", worst, "%.5f"

    # Nearer to a known point than this, but not on it, the weight leaves 32 bits: fault 6.
    q = math.sqrt(1 / LARGEST)
    yield "fault6.metres", 1000 * math.sqrt(q) * degree_lengths(36)[1], "%.2f"
    known = next(p for p in points if p[0] == "대전32")
    text = (TOP / "examples/kelvo.cor").read_bytes()
    run = kelvo.run(["CORRECTION", "INPUT deg", f"WGS a {known[1]:.10f} {known[2]:.10f} {known[3]}"], text)
    yield "fault6.number", run.errors.rpartition("run-time error ")[2].partition(":")[0] if run.exit_code else "none", "%s"
    run = kelvo.run(["CORRECTION", "INPUT deg", f"WGS a {known[1]:.8f} {known[2]:.8f} {known[3]}"], text)
    if run.exit_code:
        raise RuntimeError("eight decimals end in a fault too: " + run.errors)
    yield "fault6.moved", 0.5e-8 * degree_lengths(36)[0] * 1000, "%.1f"

    # How the correction weighs north against east.
    north, east = degree_lengths(36)
    yield "correction.stretch", (north / east) ** 2, "%.2f"
    yield "correction.used", 1.2, "%.1f"
    # Ten times the distance: how much less a known point counts.
    yield "correction.tenfold", 10**4, "%d"
