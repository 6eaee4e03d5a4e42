#!/usr/bin/env python3
"""Writes the golden call lists of whole plots (*.plot) beside this script.

The figures come from the calculation below, which shares no line with the program: run it and
look at the difference when a plot is meant to change. A file holds the plot's input, a line
with a point alone, and what the surface is told.
"""
import math
import pathlib
import struct
from decimal import ROUND_HALF_UP, Decimal

HERE = pathlib.Path(__file__).parent
TITLE = "Kelvo Ver 3.5 Beta(2004.6.7)"
FOOTER = "Data File = /home/user/data/test.dat  2004-06-07  09:30:00"


def single(x):
    return struct.unpack("f", struct.pack("f", x))[0]


def format_num(value, width, decimals):
    text = Decimal("%.14e" % abs(value)).quantize(Decimal(1).scaleb(-decimals), ROUND_HALF_UP)
    text = f"{text:f}"
    whole, point, rest = text.partition(".")
    assert value >= 0
    return whole.rjust(width) + point + rest


def split_deg(x):
    d = math.floor(x)
    m = math.floor((x - d) * 60)
    s = ((x - d) - m / 60) * 3600
    if s < 0:
        m, s = m - 1, s + 60
    if m < 0:
        d, m = d - 1, m + 60
    if s > 59.99999:
        s, m = 0, m + 1
    if m >= 60:
        m, d = 0, d + 1
    assert abs(x - ((m / 60 + d) + s / 3600)) <= 1e-8
    return d, m, s


def deg_to_dms(x):
    d, m, s = split_deg(x)
    return m / 100 + d + s / 10000


def dms_to_deg(x):
    text = format_num(x, 4, 10)
    assert len(text) == 15
    return (int(text[5:7]) / 60 + int(text[:4])) + float(text[7:15]) / 1000000 / 3600


def angle_label(v):
    d, m, s = split_deg(v)
    seconds = format_num(s, 2, 4).replace(" ", "0")
    return (str(d).rjust(8) + "-" + format_num(m, 2, 0).replace(" ", "0") + "-" + seconds)[4:14]


class Plot:
    def __init__(self, printer):
        self.printer = printer
        self.out = []
        self.x0, self.y0, self.scale = (15, 40, 1.3) if printer else (0, 0, 1)
        self.pixel = 2.4 if printer else 15
        self.dpi = 600 if printer else 96
        self.width = 0
        self.tell("ScaleMode = 1" if printer else "ForeColor = 0")
        self.tell("Font = 굴림체")

    def tell(self, line):
        self.out.append(line)

    def window(self, pl, ul, pr, ur, pb, ub, pt, ut):
        self.pl, self.ul, self.pb, self.ub = pl, ul, pb, ub
        self.xs = (pr - pl) / (ur - ul)
        self.ys = (pt - pb) / (ut - ub)

    def cx(self, x):
        return 56.7 * (self.scale * single(self.pl + self.xs * (x - self.ul)) + self.x0)

    def cy(self, y):
        return 56.7 * (self.scale * (self.pb + self.ys * (y - self.ub)) + self.y0)

    def cx_inv(self, x):
        return self.ul + ((x / 56.7 - self.x0) / self.scale - self.pl) / self.xs

    def cy_inv(self, y):
        return self.ub + ((y / 56.7 - self.y0) / self.scale - self.pb) / self.ys

    def latch(self, lw):
        if lw != 0 and lw != self.width:
            self.tell("DrawWidth = %.4f" % max(1, self.scale * ((56.7 * lw) / 56.7)))
            self.width = lw

    def line(self, x1, y1, x2, y2):
        self.tell("Line %.4f %.4f %.4f %.4f 0 6" % (self.cx(x1), self.cy(y1), self.cx(x2), self.cy(y2)))

    def pline(self, x1, y1, x2, y2, lw):
        self.latch(lw)
        self.line(x1, y1, x2, y2)

    def size(self, size):
        self.points = max(1 if self.printer else 3, self.scale * size)
        self.tell("fontsize = %.4f" % self.points)

    def text(self, text, x, y, size):
        self.size(size)
        self.tell("CurrentX = %.4f" % self.cx(x))
        self.tell("CurrentY = %.4f" % (self.cy(y) - 0.8 * (20 * self.points)))
        self.tell("print " + text)

    def text_turned(self, text, x, y, size):
        self.size(size)
        if self.printer:
            self.tell("print ")
        self.tell("CreateFontIndirectA %d 900 400 1 굴림체" % (round(self.points * self.dpi) // 72))
        self.tell("SelectObject")
        self.tell("TextOutA %d %d %d %s" % (round(self.cx(x) / self.pixel), round(self.cy(y) / self.pixel),
                                            len(text), text))
        self.tell("SelectObject")
        self.tell("DeleteObject")

    def shifted(self, x, dx, y, dy):
        sx = -1 if self.xs < 0 else 1
        sy = -1 if self.ys < 0 else 1
        return (self.cx_inv(56.7 * (self.scale * (dx * sx)) + self.cx(x)),
                self.cy_inv(56.7 * (self.scale * (dy * sy)) + self.cy(y)))

    def move_mm(self, x, dx, y, dy):
        self.pen = self.shifted(x, dx, y, dy)

    def line_mm(self, x, dx, y, dy, lw):
        self.latch(lw)
        tx, ty = self.shifted(x, dx, y, dy)
        tx, ty = single(tx), single(ty)
        self.line(*self.pen, tx, ty)
        self.pen = tx, ty

    def circle(self, x, y, size, lw):
        self.latch(lw)
        radius = (size * 0.5) / self.xs
        self.tell("Circle %.4f %.4f %.4f 0 0.0000 0.0000 0.0000 0" %
                  (self.cx(x), self.cy(y), self.scale * (56.7 * (self.xs * radius))))

    def plus(self, x, y, size, lw):
        self.latch(lw)
        a = single(0.8 * size)
        lw = lw * 1.4
        self.move_mm(x, 0, y, 0.5 * a)
        self.line_mm(x, 0, y, -0.5 * a, lw)
        self.move_mm(x, -0.5 * a, y, 0)
        self.line_mm(x, 0.5 * a, y, 0, lw)


ANGLE_ROWS = ((10, 2), (20, 5), (60, 10), (180, 30), (600, 120), (1800, 300))
METRE_ROWS = ((60, 20), (300, 50), (600, 200), (3000, 500), (6000, 2000), (30000, 5000), (60000, 20000))


def interval(w, below, first, rows, beyond):
    if w < below:
        return first
    return next((i for up_to, i in rows if w <= up_to), beyond)


def automatic(kind, points):
    factor = 1 if kind == "XY" else 3600
    max_n, min_n = max(p[1] for p in points) * factor, min(p[1] for p in points) * factor
    max_e, min_e = max(p[2] for p in points) * factor, min(p[2] for p in points) * factor
    rn, re = max_n - min_n, max_e - min_e
    w = re if re > rn else rn
    if kind == "XY":
        i, up = interval(w, 30, 5, METRE_ROWS, 50000), 0
    else:
        i, up = interval(w, 5, 1, ANGLE_ROWS, 3600), 0.5
    if w == rn:
        low, high, a, b = min_n, max_n, max_e, min_e
    else:
        low, high, a, b = min_e, max_e, max_n, min_n
    low = math.floor(low / i) * i
    span = single((math.floor(high / i) + 1) * i - low)
    other = math.floor(((a + b) / 2 - span / 2) / i + up) * i
    n, e = (low, other) if w == rn else (other, low)
    shown = []
    for v in (n, e, span, i):
        v = single(v)
        if kind == "XY":
            shown.append(format_num(v, 7, 0))
        else:
            shown.append(format_num(deg_to_dms((v + 0.1) / 3600), 4, 4))
    read = [single(float(t) if kind == "XY" else dms_to_deg(float(t))) for t in shown]
    return shown, read


def draw(kind, printer, size, scale, points):
    size = single(size)
    xb, yb, s, inter = scale
    p = Plot(printer)
    p.tell("EndDoc" if printer else "Cls")
    p.window(0, yb - 0.05 * s, 137, yb + 1.05 * s, 0, xb + 1.05 * s, 137, xb - 0.05 * s)
    label = (lambda v: format_num(v, 7, 0)) if kind == "XY" else (lambda v: angle_label(v + 0.00001))

    def values(begin):
        v = begin
        while single(v) <= single(begin + s):
            yield v
            v = v + inter
            if kind == "XY":
                v = single(v)

    for v in values(xb):
        p.pline(yb - 0.03 * s, v, yb + 1.03 * s, v, 1)
        k = 0.01 if v == xb else 0.06
        p.text(label(v), yb - k * s, v + 0.005 * s, size)
    for v in values(yb):
        p.pline(v, xb - 0.03 * s, v, xb + 1.03 * s, 1)
        p.text_turned(label(v), v - 0.03 * s, xb - 0.06 * s, size)
    for name, n, e in points:
        p.circle(e, n, size / 6, 2)
        p.plus(e, n, size / 1.5, 1)
        p.text(name, e - 0.03 * s, n + 0.02 * s, size)
    p.text(TITLE, yb - 0.03 * s, xb - 0.2 * s, 10)
    p.text(FOOTER, yb - 0.03 * s, xb - 0.24 * s, 10)
    if printer:
        p.tell("EndDoc")
    return p.out


def write(name, kind, points, manual=None, printer=False, size=8):
    lines = ["kind " + kind, "surface " + ("printer" if printer else "screen"), "size " + repr(size)]
    if manual:
        scale = [single(v) for v in manual]
        lines.append("manual " + " ".join(map(repr, scale)))
    else:
        shown, scale = automatic(kind, points)
        lines += ["box " + t for t in shown]
    lines += ["point %r %r %s" % (n, e, label) for label, n, e in points]
    lines.append(".")
    lines += draw(kind, printer, size, scale, points)
    (HERE / (name + ".plot")).write_text("\n".join(lines) + "\n", encoding="utf-8")


def degrees(seconds):
    """Decimal degrees that are exactly these seconds again when multiplied by 3600."""
    v = seconds / 3600
    for candidate in (v, math.nextafter(v, 0), math.nextafter(v, 999)):
        if candidate * 3600 == seconds:
            return candidate
    raise ValueError(seconds)


def main():
    for old in HERE.glob("*.plot"):
        old.unlink()
    n0, e0 = 37 * 3600 + 754, 127 * 3600 + 331
    for w in (4.75, 5, 10, 10.5, 20, 20.25, 60, 60.5, 180, 181, 600, 600.5, 1000, 1800, 1800.25, 5000):
        for kind in ("WGS", "UGS"):
            if kind == "UGS" and w not in (4.75, 60, 1000):
                continue
            write(f"{kind.lower()}-north-{w}", kind,
                  [("가", degrees(n0), degrees(e0)), ("나-2", degrees(n0 + w), degrees(e0 + 2)),
                   ("C3", degrees(n0 + 1.5), degrees(e0 + 0.5))])
    write("wgs-east-600", "WGS", [("가", degrees(n0), degrees(e0)), ("B", degrees(n0 + 100), degrees(e0 + 600))])
    write("ugs-east-1800.25", "UGS", [("가", degrees(n0), degrees(e0 + 1800.25)), ("B", degrees(n0 + 7), degrees(e0))])
    write("wgs-equal-20", "WGS", [("가", degrees(n0), degrees(e0)), ("B", degrees(n0 + 20), degrees(e0 + 20))])
    write("wgs-one-point", "WGS", [("하나", 37.123456789, 127.987654321)])
    write("ugs-printer", "UGS", [("가", 37.25, 126.5), ("나", 37.26, 126.512)], printer=True, size=7.5)
    write("wgs-manual", "WGS", [("가", 37.251, 126.501), ("밖", 39.0, 129.0)], manual=(37.25, 126.5, 0.02, 0.005))
    write("ugs-manual-printer", "UGS", [("가", 37.251, 126.501)], manual=(37.25, 126.5, 1, 0.25), printer=True)
    for w in (29.9, 30, 60, 60.1, 300, 301, 600, 600.5, 3000, 3001, 6000, 6001, 30000, 30001, 60000, 60001):
        write(f"xy-north-{w}", "XY", [("가", 420000.0, 200011.223), ("나-2", 420000.0 + w, 200003.741),
                                      ("C3", 420001.5, 200000.0)])
    write("xy-east-300", "XY", [("가", 420000.5, 180000.0), ("B", 420100.25, 180300.0)])
    write("xy-equal-600", "XY", [("가", 420000.0, 180000.0), ("B", 420600.0, 180600.0)])
    write("xy-one-point", "XY", [("하나", 453211.376, 198765.432)])
    write("xy-seven-digits", "XY", [("가", 4150010.0, 322000.0), ("나", 4154010.0, 322500.0)])
    write("xy-printer", "XY", [("가", 420000.5, 180000.0), ("B", 420100.25, 180300.0)], printer=True)
    write("xy-manual", "XY", [("가", 500100.0, 200100.0), ("밖", 490000.0, 250000.0)],
          manual=(500000, 200000, 1000, 200), size=6.5)


if __name__ == "__main__":
    main()
