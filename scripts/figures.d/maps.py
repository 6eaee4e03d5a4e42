"""The maps of the pages, and the values in them: each picture carries a sample of what it shows."""

import json
import math
import os
import struct
import sys
import zlib

from engine import BATCH, PANEL
from grids import tm
from heights import against_egm96
from iteration import loss, there_and_back
from places import PLACES, degree_lengths, distance, grid, shores

AREA = (32.8, 38.8, 124.2, 132.6)  # south, north, west, east
NORTHWARD = (32.8, 40.0, 124.2, 132.6)
LANGUAGES = ("", ".ko")
CHUNK = "Kelvo values"


def height_map(kelvo, proj, points):
    return against_egm96(kelvo, proj, points, BATCH)


def iteration_map(kelvo, _, points):
    at = [(p, l, 0.0) for p, l in points]
    return [1000 * max(loss(b, a)[0], 1e-7) for b, a in zip(at, there_and_back(kelvo, at))]


def kinds_map(kelvo, _, points):
    at = [(p, l, 0.0) for p, l in points]
    return [1000 * distance(a, b) for a, b in zip(kelvo.to_user(at, BATCH), kelvo.to_user(at, PANEL))]


def scale_map(kelvo, _, points):
    """The scale of the TM grid less 1, in ppm, from a step of a hundred-thousandth of a degree."""
    step = 1e-5
    origins = [tm(l, 0) for _, l in points]
    low = kelvo.to_grid([(p - step, l) for p, l in points], origins)
    high = kelvo.to_grid([(p + step, l) for p, l in points], origins)
    return [(math.dist(a, b) / (2 * step * degree_lengths(p)[0]) - 1) * 1e6
            for a, b, (p, _) in zip(low, high, points)]  # fmt: skip


# Name, values, area, contour levels, and the titles in both languages.
MAPS = {
    "heights": (height_map, AREA, [10, 15, 20, 25, 30, 35, 40, 45, 50, 55, 60, 65, 70, 75, 80],
                "Printed height of a run without correction,\nmetres above that of EGM96",
                "보정하지 않은 일괄변환의 표고가\nEGM96의 표고보다 높은 양 (m)"),
    "iteration": (iteration_map, NORTHWARD, [0.1, 0.3, 1, 3, 10, 30, 100, 300, 1000],
                  "WGS84 to the user ellipsoid and back:\nloss to the north at height 0, millimetres",
                  "WGS84에서 사용자 타원체로 갔다 올 때\n남북으로 어긋나는 양 (높이 0 m, mm)"),
    "kinds": (kinds_map, AREA, [124, 125, 126, 127, 128, 129, 130, 131, 132],
              "A run (Molodensky) against the panel as it opens (Bursa):\ndifference in place, millimetres",
              "일괄변환(Molodensky)과 입력창의 처음 설정(Bursa)의\n평면 위치 차이 (mm)"),
    "scale": (scale_map, AREA, [0, 5, 10, 20, 30, 40, 50, 60, 70, 80, 90, 100, 110],
              "Scale of the TM grid, each point in its own zone:\nmillimetres longer in a kilometre (ppm)",
              "TM 투영의 축척 (점마다 제 원점):\n1 km에 늘어나는 길이 (mm, ppm)"),
}  # fmt: skip


def sample(kelvo, proj, name):
    """The map's values on every degree, three digits each."""
    values, (south, _, west, _), *_ = MAPS[name]
    points = [(south + 0.55 + i, west + 0.35 + j) for i in range(6) for j in range(8)]
    return [float(f"{v:.3g}") for v in values(kelvo, proj, points)]


def stored_sample(path):
    """What a picture carries, or nothing."""
    data = path.read_bytes()
    at = 8
    while at < len(data):
        length, kind = struct.unpack(">I4s", data[at : at + 8])
        keyword, _, rest = data[at + 8 : at + 8 + length].partition(b"\0")
        if keyword == CHUNK.encode() and kind == b"tEXt":
            return json.loads(rest)
        if keyword == CHUNK.encode() and kind == b"zTXt":
            return json.loads(zlib.decompress(rest[1:]))
        at += length + 12
    return None


def complaints(kelvo, proj, folder):
    found = []
    for name in MAPS:
        now = sample(kelvo, proj, name)
        for language in LANGUAGES:
            path = folder / f"numbers-{name}{language}.png"
            shown = stored_sample(path) if path.exists() else None
            if shown is None:
                found.append(f"{path.name} is missing or says nothing of its values")
            elif len(shown) != len(now) or any(abs(a - b) > 0.01 * abs(b) + 0.01 for a, b in zip(shown, now)):
                found.append(f"{path.name} shows other values: scripts/figures --maps")
    return found


def draw_all(kelvo, proj, folder):
    try:
        import matplotlib
    except ImportError:
        if os.path.realpath(sys.executable) == os.path.realpath("/usr/bin/python3"):
            print("matplotlib is missing (Debian: python3-matplotlib fonts-nanum)")
            return 2
        os.execv("/usr/bin/python3", ["/usr/bin/python3", *sys.argv])
    matplotlib.use("Agg")
    matplotlib.rcParams.update({"font.family": "NanumGothic", "axes.unicode_minus": False, "font.size": 9})
    for name in MAPS:
        carried = json.dumps(sample(kelvo, proj, name))
        for language in LANGUAGES:
            path = folder / f"numbers-{name}{language}.png"
            draw(kelvo, proj, name, language, path, carried)
            print(path)
    return 0


def draw(kelvo, proj, name, language, path, carried):
    from matplotlib import colors, patheffects, pyplot

    values, (south, north, west, east), levels, *titles = MAPS[name]
    step = 0.05
    points = grid(step, south, north, west, east)
    columns = round((east - west) / step) + 1
    z = values(kelvo, proj, points)
    rows = [z[i : i + columns] for i in range(0, len(z), columns)]
    latitudes = [points[i][0] for i in range(0, len(points), columns)]
    longitudes = [p[1] for p in points[:columns]]

    figure, axes = pyplot.subplots(figsize=(6.0, 5.9 * (north - south) / 5.8), layout="constrained")
    shades = pyplot.get_cmap("YlGnBu")
    light = colors.ListedColormap([shades(0.75 * i / 255) for i in range(256)])
    norm = colors.BoundaryNorm(levels, 256, extend="both")
    filled = axes.contourf(longitudes, latitudes, rows, levels, cmap=light, norm=norm, extend="both")
    if name != "scale":
        lines = axes.contour(longitudes, latitudes, rows, levels, colors="#555555", linewidths=0.4)
        axes.clabel(lines, fontsize=7, fmt="%g")
    for kind, line in shores():
        axes.plot([l for _, l in line], [p for p, _ in line], color="black" if kind == "land" else "#666666",
                  linewidth=1.0 if kind == "land" else 0.6)  # fmt: skip
    for name_here, (p, l, english, korean) in PLACES.items():
        axes.plot(l, p, "o", color="black", markersize=2.5)
        leftward = name_here in ("incheon", "mokpo", "marado")
        label = axes.annotate(korean if language else english, (l, p), textcoords="offset points", fontsize=7.5,
                              xytext=(-4 if leftward else 4, -9 if leftward else 3), ha="right" if leftward else "left")
        label.set_path_effects([patheffects.withStroke(linewidth=2, foreground="white", alpha=0.7)])
    axes.set(xlim=(west, east), ylim=(south, north), title=titles[1 if language else 0])
    axes.set_aspect(1 / math.cos(math.radians((south + north) / 2)))
    axes.xaxis.set_major_formatter("{x:g}°E")
    axes.yaxis.set_major_formatter("{x:g}°N")
    figure.colorbar(filled, ax=axes, shrink=0.8, ticks=levels, format="%g")
    figure.savefig(path, dpi=110, metadata={"Software": None, CHUNK: carried})
    pyplot.close(figure)
