"""Projection, shift, geoid and angles, formula by formula."""

import math

from checked import Fault, Num, atan, cos, floor16, int16, sin, sqrt
from text import format_num, number

BESSEL_A = Num(6377397.155)
BESSEL_F = Num(1) / Num(299.152813)
WGS_A = Num(6378137.0)
WGS_F = Num(1) / Num(298.257223563)
DEVELOPER = "Program 개발자에게 알려 주시기 바랍니다."

# Latitude, longitude, geoid height above Bessel, weight. The table goes on to 130 degrees of
# longitude, but only these rows are ever read.
GEOID = [
    (34, 126, -50, 3), (35, 126, -55, 2), (36, 126, -60, 2), (37, 126, -64, 2), (38, 126, -65, 3),
    (34, 127, -46, 2), (35, 127, -49, 1), (36, 127, -56, 1), (37, 127, -63, 1), (38, 127, -65, 2),
    (34, 128, -43, 2), (35, 128, -45, 1), (36, 128, -52, 1), (37, 128, -58, 1), (38, 128, -62, 2),
]  # fmt: skip


def radian():
    return atan(Num(1.0)) / 45.0


def norm_flat(f):
    return 1 / f if f > 1.0 else f


def sign_of(x):
    return (x > 0) - (x < 0)


def radius_n(a, e2, phi):
    return a / sqrt(1 - sin(phi) ** 2 * e2)


def radius_m(a, e2, phi):
    w = sqrt(1 - sin(phi) ** 2 * e2)
    return ((1 - e2) * a) / w**3


class Series:
    """The constants of an ellipsoid that both directions of the projection start from."""

    def __init__(self, a, f):
        invf = 1 / norm_flat(f)
        b = ((invf - 1) * a) / invf
        self.e2 = (a**2 - b**2) / a**2
        self.ep2 = (a**2 - b**2) / b**2
        n = (a - b) / (b + a)
        n2, n3, n4, n5 = n**2, n**3, n**4, n**5
        self.A = (81 * (n4 - n5) / 64 + (5 * (n2 - n3) / 4 + (1 - n))) * a
        self.B = ((55 * n5 / 64 + ((n - n2) + 7 * (n3 - n4) / 8)) * (3 * a)) / 2
        self.C = (((n2 - n3) + 3 * (n4 - n5) / 4) * (15 * a)) / 16
        self.D = ((11 * n5 / 16 + (n3 - n4)) * (35 * a)) / 48
        self.E = ((n4 - n5) * (315 * a)) / 512

    def arc(self, phi):
        return (self.A * phi - sin(phi + phi) * self.B + sin(4 * phi) * self.C
                - sin(6 * phi) * self.D + sin(8 * phi) * self.E)  # fmt: skip


class Geodesy:
    """Messages go to `tell`; the shift is that of the last set_datum_para."""

    def __init__(self, tell):
        self.tell = tell
        self.shift = [Num(0)] * 7
        self.kind = 0
        self.loaded = False

    # Grid

    def geo_to_tm(self, Phi, Lam, a, f, X0, Y0, Phi0, Lam0, S0):
        try:
            return self._geo_to_tm(Phi, Lam, a, f, X0, Y0, Phi0, Lam0, S0)
        except Fault:
            self.tell("직교좌표로 변환할 수 없는 데이터 입니다. 타원체 제원과 경위도를 확인후 다시 하십시오")
            return X0, Y0

    def _geo_to_tm(self, Phi, Lam, a, f, X0, Y0, Phi0, Lam0, S0):
        rad = radian()
        phi, lam, phi0, lam0 = Phi * rad, Lam * rad, Phi0 * rad, Lam0 * rad
        q = Series(a, f)
        dl = lam - lam0
        M0 = q.arc(phi0) * S0
        s, c = sin(phi), cos(phi)
        t = s / c
        h = c**2 * q.ep2
        N = radius_n(a, q.e2, phi)
        sN = s * N
        P3 = 5 - t**2 + 9 * h + 4 * h**2
        P4 = (61 - 58 * t**2 + t**4 + 270 * h - 330 * t**2 * h + 445 * h**2 + 324 * h**3
              - 680 * t**2 * h**2 + 88 * h**4 - 600 * t**2 * h**3 - 192 * t**2 * h**4)  # fmt: skip
        P5 = 1385 - 3111 * t**2 + 543 * t**4 - t**6
        T1 = q.arc(phi) * S0
        T2 = (sN * c * S0) / 2
        T3 = (c**3 * sN * S0 * P3) / 24
        T4 = (c**5 * sN * S0 * P4) / 720
        T5 = (c**7 * sN * S0 * P5) / 40320
        X = (dl**2 * T2 + T1) + dl**4 * T3 + dl**6 * T4 + dl**8 * T5 - M0 + X0
        P8 = (5 - 18 * t**2 + t**4 + 14 * h - 58 * t**2 * h + 13 * h**2 + 4 * h**3
              - 64 * t**2 * h**2 - 24 * t**2 * h**3)  # fmt: skip
        P9 = 61 - 479 * t**2 + 179 * t**4 - t**6
        T6 = c * N * S0
        T7 = (c**3 * N * S0 * (1 - t**2 + h)) / 6
        T8 = (c**5 * N * S0 * P8) / 120
        T9 = (c**7 * N * S0 * P9) / 5040
        Y = (T6 * dl + Y0) + dl**3 * T7 + dl**5 * T8 + dl**7 * T9
        return X, Y

    def tm_to_geo(self, X, Y, a, f, X0, Y0, Phi0, Lam0, S0):
        try:
            return self._tm_to_geo(X, Y, a, f, X0, Y0, Phi0, Lam0, S0)
        except Fault:
            self.tell("경위도로 변환할 수 없는 직교좌표 입니다. 타원체 제원과 좌표를 확인후 다시 하십시오")
            return Phi0, Lam0

    def _tm_to_geo(self, X, Y, a, f, X0, Y0, Phi0, Lam0, S0):
        rad = radian()
        phi0, lam0 = Phi0 * rad, Lam0 * rad
        q = Series(a, f)
        S = ((q.arc(phi0) * S0 + X) - X0) / S0
        phi = S / radius_m(a, q.e2, Num(0))
        for _ in range(5):
            phi = (S - q.arc(phi)) / radius_m(a, q.e2, phi) + phi
        M, N = radius_m(a, q.e2, phi), radius_n(a, q.e2, phi)
        s, c = sin(phi), cos(phi)
        t = s / c
        h = c**2 * q.ep2
        dy = Y - Y0
        Q11 = 5 + 3 * t**2 + h - 4 * h**2 - 9 * t**2 * h
        Q12 = (61 + 90 * t**2 + 46 * h + 45 * t**4 - 252 * t**2 * h - 3 * h**2 + 100 * h**3
               - 66 * t**2 * h**2 - 90 * t**4 * h + 88 * h**4 + 225 * t**4 * h**2
               + 84 * t**2 * h**3 - 192 * t**2 * h**4)  # fmt: skip
        Q13 = 1385 + 3633 * t**2 + 4095 * t**4 + 1575 * t**6
        T10 = t / (S0**2 * ((M + M) * N))
        T11 = Q11 * t / (S0**4 * (N**3 * (24 * M)))
        T12 = Q12 * t / (S0**6 * (N**5 * (720 * M)))
        T13 = Q13 * t / (S0**8 * (N**7 * (40320 * M)))
        phi = phi - dy**2 * T10 + dy**4 * T11 - dy**6 * T12 + dy**8 * T13
        Q16 = (5 + 6 * h + 28 * t**2 - 3 * h**2 + 8 * t**2 * h + 24 * t**4 - 4 * h**3
               + 4 * t**2 * h**2 + 24 * t**2 * h**3)  # fmt: skip
        Q17 = 61 + 662 * t**2 + 1320 * t**4 + 720 * t**6
        T14 = 1 / (c * N * S0)
        T15 = (t**2 + t**2 + 1 + h) / (S0**3 * (N**3 * 6 * c))
        T16 = Q16 / (S0**5 * (N**5 * 120 * c))
        T17 = Q17 / (S0**7 * (N**7 * 5040 * c))
        lam = (dy * T14 - dy**3 * T15 + dy**5 * T16 - dy**7 * T17) + lam0
        return phi / rad, lam / rad

    def bessel_to_tm(self, Phi, Lam, shift):
        zone = 1 if Lam < 126.0 else 3 if Lam > 128.0 else 2
        Lam0 = (2 * Num(zone) + 123) + Num(shift) / 3600
        return self.geo_to_tm(Phi, Lam, BESSEL_A, BESSEL_F, Num(500000), Num(200000), Num(38), Lam0, Num(1))

    # Shift

    def set_datum_para(self, dX, dY, dZ, Omega, Phi, Kappa, dS, kind):
        rotations = [(r / 3600) * radian() for r in (Omega, Phi, Kappa)]
        self.shift = [dX, dY, dZ, *rotations, dS * 1e-6]
        self.kind = kind
        self.loaded = True

    def _axes(self, a, f):
        invf = 1 / norm_flat(f)
        b = ((invf - 1) * a) / invf
        return b, (a**2 - b**2) / a**2

    def geo_to_xyz(self, Phi, Lam, h, a, f):
        b, e2 = self._axes(a, f)
        phi, lam = Phi * radian(), Lam * radian()
        N = radius_n(a, e2, phi)
        return (((N + h) * cos(phi)) * cos(lam), ((N + h) * cos(phi)) * sin(lam),
                ((b**2 / a**2) * N + h) * sin(phi))  # fmt: skip

    def xyz_to_geo(self, X, Y, Z, a, f):
        h = Num(0)
        try:
            b, e2 = self._axes(a, f)
            lam = atan(Y / X)
            p = sqrt(X * X + Y * Y)
            N, previous, passes = a, Num(0), 0
            while True:
                passes += 1
                r = (b**2 / a**2) * N + h
                phi = atan(Z / sqrt(r**2 - Z**2))
                if abs(phi - previous) < 1e-18:
                    break
                N = radius_n(a, e2, phi)
                h = p / cos(phi) - N
                previous = phi
                if passes > 30:
                    break
            Phi, Lam = phi / radian(), lam / radian()
            if X < 0:
                Lam = Lam + 180
            if Lam < 0:
                Lam = Lam + 360
            return Phi, Lam, h
        except Fault:
            self.tell("경위도로 변환 할 수 없는 GPS 좌표 입니다. 확인후 다시 변환 하십시오")
            return Num(0), Num(0), h

    def forward(self, X, Y, Z):
        dX, dY, dZ, O, P, K, dS = self.shift
        w = dS + 1
        if self.kind > 1:
            return (((K * Y + X) - P * Z) * w + dX, ((-K * X + Y) + O * Z) * w + dY,
                    ((P * X - O * Y) + Z) * w + dZ)  # fmt: skip
        return ((K * Y - P * Z) * w + X + dX, (-K * X + O * Z) * w + Y + dY,
                (P * X - O * Y) * w + Z + dZ)  # fmt: skip

    def inverse(self, X, Y, Z):
        dX, dY, dZ, O, P, K, dS = self.shift
        w = dS + 1
        if self.kind > 1:
            u, v, z = X - dX, Y - dY, Z - dZ
        else:
            u, v, z = (X - dX) * w, (Y - dY) * w, (Z - dZ) * w
        return (((u - K * v) + P * z) * (1 / w), ((K * u + v) - O * z) * (1 / w),
                ((-P * u + O * v) + z) * (1 / w))  # fmt: skip

    def wgs_to_user(self, Phi, Lam, h, a, f):
        return self.xyz_to_geo(*self.forward(*self.geo_to_xyz(Phi, Lam, h, WGS_A, WGS_F)), a, f)

    def user_to_wgs(self, Phi, Lam, h, a, f):
        return self.xyz_to_geo(*self.inverse(*self.geo_to_xyz(Phi, Lam, h, a, f)), WGS_A, WGS_F)

    def geoid_height_bessel(self, Phi, Lam):
        sum1 = sum2 = Num(0)
        for latitude, longitude, height, weight in GEOID:
            d = sqrt((Lam - longitude) ** 2 + (Phi - latitude) ** 2)
            if d == 0:
                d = Num(1e-05)
            sum1 = sum1 + Num(height * weight) / d**2
            sum2 = sum2 + Num(weight) / d**2
        return sum1 / (sum2 if sum2 != 0 else Num(1))

    # Angles

    def split_deg(self, x):
        D = floor16(x)
        M = floor16((x - D) * 60)
        S = ((x - D) - Num(M) / 60) * 3600
        if S < 0:
            M, S = M - 1, S + 60
        if M < 0:
            D, M = D - 1, M + 60
        if S > 59.99999:
            S, M = Num(0), M + 1
        if M >= 60:
            M, D = 0, D + 1
        int16(D)
        if abs(x - ((Num(M) / 60 + D) + S / 3600)) > 1e-08:
            parts = "-".join(f" {part:.15g}" for part in (D, M, S))
            self.tell(f"각도 {format_num(x, 4, 10)}을 도분초{parts} 로 환산할때 에러가 있습니다. {DEVELOPER}")
        return D, M, S

    def parse_dms(self, x):
        t = format_num(x, 4, 10)
        D = int(number(t[:4].strip()))
        M = int(number(t[5:7].strip()))
        S = number(t[7:15].strip()) / 1000000
        result = (Num(M) / 60 + D) + S / 3600
        D, M, S = self.split_deg(result)
        if abs(result - ((Num(M) / 60 + D) + S / 3600)) > 1e-09:
            self.tell(f"{format_num(x, 4, 10)}도분초를  각도 {format_num(result, 4, 10)}"
                      f" 로 환산할때 에러가 있습니다. {DEVELOPER}")  # fmt: skip
        return result

    def dms_to_deg(self, x):
        return self.parse_dms(abs(x)) * sign_of(x)

    def deg_to_dms(self, x):
        D, M, S = self.split_deg(abs(x))
        return (Num(M) / 100 + D + S / 10000) * sign_of(x)

    def angle_text(self, x, form):
        D, M, S = self.split_deg(abs(x))
        degrees = (("-" if x < 0 else "") + str(D)).rjust(8)
        minutes = format_num(M, 2, 0)
        seconds = format_num(S, 2, 4)
        minutes = "0" + minutes[1:] if minutes[0] == " " else minutes
        seconds = "0" + seconds[1:] if seconds[0] == " " else seconds
        if form == 1:
            return format_num(x, 8, 10)
        if form == 4:
            return format_num(self.deg_to_dms(x), 8, 10)
        return degrees + {2: " ", 3: "-"}[form] + minutes + {2: " ", 3: "-"}[form] + seconds

    def arc_sec_len(self, Phi, Lam):
        second = Num(1) / 3600
        X1, Y1 = self.bessel_to_tm(Phi, Lam, 10.405)
        X2, Y2 = self.bessel_to_tm(second + Phi, Lam, 10.405)
        MPhi = sqrt((Y2 - Y1) ** 2 + (X2 - X1) ** 2)
        X1, Y1 = self.bessel_to_tm(Phi, Lam, 10.405)
        X2, Y2 = self.bessel_to_tm(Phi, second + Lam, 10.405)
        return MPhi, sqrt((Y2 - Y1) ** 2 + (X2 - X1) ** 2)


def distance_and_direction(X1, Y1, X2, Y2):
    dX, dY = X2 - X1, Y2 - Y1
    distance = sqrt(dX**2 + dY**2)
    if dX == 0:
        dX = Num(1e-15)
    direction = Num(math.atan(dY / dX)) * 57.29578
    return (direction + 180 if dX < 0 else direction), distance
