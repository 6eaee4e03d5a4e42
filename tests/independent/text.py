"""Lines, fields and fixed-width text."""

import re
from decimal import ROUND_HALF_UP, Context, Decimal

from checked import Fault, Num, single

WIDE = Context(prec=700)
SEPARATORS = " ,\t\0"


class Input:
    """A text file read line by line. At its end no byte follows the line end consumed last."""

    def __init__(self, data):
        self.text = data.decode("cp949", "surrogateescape")
        self.next = 0

    def at_end(self):
        return self.next >= len(self.text)

    def line(self):
        if self.at_end():
            raise Fault(62)
        found = re.compile("\r\n|\r|\n").search(self.text, self.next)
        begin = self.next
        if not found:
            self.next = len(self.text)
            return self.text[begin:]
        self.next = found.end()
        return self.text[begin : found.start()]


class Output:
    def __init__(self):
        self.lines = []

    def line(self, text):
        self.lines.append(text)

    def data(self):
        return "".join(line + "\r\n" for line in self.lines).encode("cp949", "surrogateescape")


NUMBER = re.compile(r"[+-]?(\d+\.?\d*|\.\d+)([EeDd][+-]?\d+)?", re.ASCII)


def number(text):
    if text[:1] == "&":
        for letter, base, digits in (("H", 16, "[0-9A-Fa-f]+"), ("O", 8, "[0-7]+")):
            if text[1:2].upper() == letter:
                found = re.match(digits, text[2:])
                return Num(int(found.group(), base)) if found else Num(0)
        return Num(0)
    found = NUMBER.match(text)
    if not found:
        return Num(0)
    value = float(re.sub("[Dd]", "E", found.group()))
    return Num(0) if value - value != 0 else Num(value)


class Fields:
    """Fields 1 to 100 of the line in `buf`: as text, as double, as single."""

    def __init__(self):
        self.buf = ""
        self.texts = []

    def parse(self, limit):
        self.texts = []
        rest = self.buf.strip(" ").lstrip(SEPARATORS)
        while len(self.texts) < limit and rest:
            end = min((rest.find(s) for s in SEPARATORS if s in rest), default=len(rest))
            self.texts.append(rest[:end])
            rest = rest[end:].lstrip(SEPARATORS)

    def join(self, first, last):
        self.parse(last)
        text = ""
        for n in range(first, last + 1):
            if self.str(n) == "":
                break
            text += self.str(n) + " "
        return text

    def str(self, n):
        return self.texts[n - 1] if n <= len(self.texts) else ""

    def num(self, n):
        return number(self.str(n))

    def sng(self, n):
        try:
            return single(self.num(n))
        except Fault:
            return Num(0)


def upper(text):
    """Letter for letter, whatever the code page can hold."""
    out = ""
    for letter in text:
        high = letter.upper()
        try:
            if len(high) == 1:
                high.encode("cp949")
                letter = high
        except UnicodeEncodeError:
            pass
        out += letter
    return out


def width_of(text):
    return len(text.encode("cp949", "surrogateescape"))


def format_text(text, width):
    taken = ""
    for letter in text:
        if width_of(taken) >= width:
            break
        taken += letter
    if width_of(taken) > width:
        taken = taken[:-1]
    return taken + " " * (width - width_of(taken))


def format_num(value, width, decimals):
    value = float(value)
    # The decimal text at 15 significant digits, halves away from zero at the last place shown.
    exact = Decimal("%.14e" % abs(value))
    shown = exact.quantize(Decimal(1).scaleb(-decimals), rounding=ROUND_HALF_UP, context=WIDE)
    whole, _, behind = f"{shown:f}".partition(".")
    mask = whole.zfill(width) + ("." + behind if decimals > 0 else "")
    if value < 0:
        mask = "-" + mask
    text = list(mask)
    if float(mask) >= 0:
        for i in range(width - 1):
            if text[i] != "0":
                break
            text[i] = " "
        return "".join(text)
    text[0] = " "
    stop = 2
    while stop <= width and text[stop - 1] == "0":
        text[stop - 1] = " "
        stop += 1
    text[stop - 2] = "-"
    return "".join(text[1:])
