"""64-bit arithmetic that never lets an infinity or a NaN pass, and 32-bit rounding.

Every operation on a Num is checked, so a fault is found at the operation that raises it.
"""

import math
import struct


class Fault(Exception):
    """A run-time fault: 5 invalid call, 6 overflow and 0/0, 9 subscript, 11 division by zero,
    53 file not found, 62 input past end."""

    def __init__(self, number):
        super().__init__(number)
        self.number = number


class Num(float):
    def __add__(self, other):
        return checked(float.__add__(self, other))

    def __radd__(self, other):
        return checked(float.__add__(float(other), self))

    def __sub__(self, other):
        return checked(float.__sub__(self, other))

    def __rsub__(self, other):
        return checked(float.__sub__(float(other), self))

    def __mul__(self, other):
        return checked(float.__mul__(self, other))

    def __rmul__(self, other):
        return checked(float.__mul__(float(other), self))

    def __truediv__(self, other):
        if other == 0:
            raise Fault(6 if self == 0 else 11)
        return checked(float.__truediv__(self, other))

    def __rtruediv__(self, other):
        return Num(other) / self

    def __neg__(self):
        return Num(float.__neg__(self))

    def __abs__(self):
        return Num(float.__abs__(self))

    def __pow__(self, exponent):
        if exponent == 2:
            return self * self  # correctly rounded, as the power function very nearly always is
        try:
            return checked(math.pow(self, exponent))
        except OverflowError:
            raise Fault(6) from None


def checked(value):
    if value - value != 0:  # an infinity or a NaN
        raise Fault(6)
    return Num(value)


def sqrt(x):
    if x < 0:
        raise Fault(5)
    return Num(math.sqrt(x))


def sin(x):
    return Num(math.sin(x))


def cos(x):
    return Num(math.cos(x))


def atan(x):
    return Num(math.atan(x))


def single(x):
    """The nearest 32-bit float; fault 6 beyond its range."""
    try:
        return Num(struct.unpack("<f", struct.pack("<f", x))[0])
    except OverflowError:
        raise Fault(6) from None


def int16(x):
    if not -32768 <= x <= 32767:
        raise Fault(6)
    return int(x)


def floor16(x):
    """The largest integer not above x, in 16 bits."""
    return int16(math.floor(x))
