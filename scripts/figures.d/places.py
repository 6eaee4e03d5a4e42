"""Where the figures hold: the land of the Republic, the box around it, and places by name."""

import math
import pathlib

SOUTH, NORTH, WEST, EAST = 33.1, 38.6, 124.6, 131.9
# Latitude and longitude (WGS84, to two decimals), English and Korean name.
PLACES = {
    "baengnyeong": (37.96, 124.67, "Baengnyeongdo", "백령도"),
    "goseong": (38.45, 128.46, "Goseong", "고성"),
    "seoul": (37.57, 126.98, "Seoul", "서울"),
    "incheon": (37.46, 126.63, "Incheon", "인천"),
    "gangneung": (37.77, 128.95, "Gangneung", "강릉"),
    "daejeon": (36.35, 127.38, "Daejeon", "대전"),
    "pohang": (36.03, 129.36, "Pohang", "포항"),
    "busan": (35.10, 129.04, "Busan", "부산"),
    "mokpo": (34.79, 126.39, "Mokpo", "목포"),
    "jeju": (33.50, 126.53, "Jeju", "제주"),
    "marado": (33.12, 126.27, "Marado", "마라도"),
    "ulleung": (37.50, 130.87, "Ulleungdo", "울릉도"),
    "dokdo": (37.24, 131.87, "Dokdo", "독도"),
}


def grid(step, south=SOUTH, north=NORTH, west=WEST, east=EAST):
    rows, columns = round((north - south) / step), round((east - west) / step)
    return [(south + i * (north - south) / rows, west + j * (east - west) / columns)
            for i in range(rows + 1) for j in range(columns + 1)]  # fmt: skip


def shores():
    """Pairs of a kind, "land" or "coast", and a line of (latitude, longitude)."""
    lines = []
    for line in (pathlib.Path(__file__).parent / "coast.txt").read_text(encoding="ascii").splitlines():
        kind, *numbers = line.split()
        if kind != "#":
            values = [float(n) for n in numbers]
            lines.append((kind, list(zip(values[1::2], values[0::2]))))
    return lines


def inside(point, ring):
    within = False
    for (p1, l1), (p2, l2) in zip(ring, ring[1:] + ring[:1]):
        if (l1 > point[1]) != (l2 > point[1]) and point[0] < (p2 - p1) * (point[1] - l1) / (l2 - l1) + p1:
            within = not within
    return within


def land(step=0.1):
    """Points on land at every `step` degrees, and the places of the list (small islands too)."""
    rings = [line for kind, line in shores() if kind == "land"]
    points = [point for point in grid(step) if any(inside(point, ring) for ring in rings)]
    return points + [(p, l) for p, l, *_ in PLACES.values()]


def degree_lengths(latitude, a=6377397.155, rf=299.1528128):
    """Metres of one degree of latitude and of longitude."""
    e2 = 2 / rf - 1 / rf**2
    w2 = 1 - e2 * math.sin(math.radians(latitude)) ** 2
    return (math.radians(a * (1 - e2) / w2**1.5), math.radians(a / math.sqrt(w2) * math.cos(math.radians(latitude))))


def apart(one, other):
    """Metres north and east from one (latitude, longitude) to the other."""
    north, east = degree_lengths(one[0])
    return (other[0] - one[0]) * north, (other[1] - one[1]) * east


def distance(one, other):
    return math.hypot(*apart(one, other))
