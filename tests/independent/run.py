#!/usr/bin/env python3
"""A batch run as a plain calculation: the reports that kelvo-batch must write, byte by byte.

    run.py DATA.dat FOLDER    reads FOLDER/kelvo.cor, writes FOLDER/NAME.out and FOLDER/kelvo.det

It shares no line with the program and takes no short cut: what both give alike is right, or
both misread the same sentence. Slow, so for tests only.
"""

import pathlib
import sys

from checked import Fault, Num, int16, single, sqrt
from geodesy import WGS_A, Geodesy, distance_and_direction
from text import Fields, Input, Output, format_num, format_text, upper

WGS_FLATTENING = Num(0.0033528106647474805)
VERSION = "Ver 3.5 Beta(2004.6.7)"
NOTES = [
    "  ",
    "       본 프로그램은 좌표변환프로그램 Kelvo " + VERSION + " 이다.",
    "  ",
    "베셀 경위도 <-> 직교좌표로의 변환은 어느 프로그램에서도 거의 같은 해가 나온다.",
    "그러나 WGS<->베셀경위도 변환은 변환파라미터에 따라 그 결과가 차이가 나며 여러",
    "연구자에 따라서 다르다.",
    "최근에 근교부에서 작성한 측량작업규정에 파라미터가 있지만 모든 지역에서 다 맞지않다 ",
    "특히 표고의 경우는 지오이드고를 어떻게 계산하는가에 따라서 차이가 난다. ",
    "  ",
    "본 프로그램에서는 지역별 차이가 나는 것을 보정하기 위하여 WGS와 베셀경위도 두가지가",
    "있는 기지점데이터를 사용하고 있다. 따라서 구하고자 하는 점 가까이 확실한 기지점이",
    "있으면 차이가 많이 줄어들 수 있다.",
    " ",
    "본 프로그램은 여러 기존의 데이터에 대하여 계산결과를 확인하여 에러를 제거 하였지만 ",
    "계산결과에 대하여는 각 사용자가 체크할 책임이 있다. ",
    "  ",
]
IN_FORMS = {1: " deg 형태 (예 128.426667)     ", 4: " ddd.mmssss 형태 (예 128.25361253)     "}
OUT_FORMS = {
    1: IN_FORMS[1],
    2: " ddd mm ss.ss 형태 (예 128 25 36.1253) ",
    3: " ddd-mm-ss.ss 형태 (예 128-25-36.1253)     ",
    4: IN_FORMS[4],
}
GRID_HEADING = " 명칭                 X                  Y               표고"
DEFAULTS = dict(
    dX=115.8, dY=-474.99, dZ=-674.11, Omega=1.16, Phi=-2.31, Kappa=-1.63, dS=-6.43, Kind=1,
    dPhi=0, dLam=0, dH=0, a=6377397.155, f=299.1528128, Zone=2, Phi0=38, Lam0=127, X0=500000,
    Y0=200000, S0=1, Ua=6377397.155, Uf=299.1528128, UZone=2, UPhi0=0, ULam0=129, UX0=0,
    UY0=500000, US0=0.9996, AddFlag=1, CorrFlag=0,
)  # fmt: skip


class Para:
    def __init__(self):
        for name, value in DEFAULTS.items():
            setattr(self, name, value if name in ("Kind", "Zone", "UZone", "AddFlag", "CorrFlag") else Num(value))


class Point:
    """A row of the table; what nobody writes stays 0 in a run of its own."""

    def __init__(self):
        self.name = ""
        for field in ("WgsPhi WgsLam WgsH UserPhi UserLam UserH TmX TmY TmH UtmX UtmY UtmH "
                      "CorrPhi CorrLam CorrH").split():  # fmt: skip
            setattr(self, field, Num(0))


class KnownPoint:
    def __init__(self):
        self.DPhi = self.DLam = self.DH = Num(0)


class Run:
    def __init__(self, data, known):
        """`data` and `known` are the bytes of the files; known is None if there is none."""
        self.input = Input(data)
        self.known_data = known
        self.out = Output()
        self.det = Output()
        self.messages = []
        self.geo = Geodesy(self.messages.append)
        self.fields = Fields()
        self.para = Para()
        self.angle_in, self.angle_out = 4, 3
        self.dirty = True
        self.rows = []
        self.known = [KnownPoint() for _ in range(201)]
        self.known_count = 0
        self.tables_written = False

    def run(self):
        """The number of the fault that ended the run, or 0."""
        try:
            self._run()
        except Fault as fault:
            return fault.number
        return 0

    def _next(self):
        self.fields.buf = self.input.line()

    def _run(self):
        for line in NOTES:
            self.out.line(line)
        self._next()
        while not self.input.at_end():
            held = False
            self.fields.parse(10)
            key_line = upper(self.fields.join(1, 2))
            key = key_line[:2]
            if key == "EN":
                break
            command = next((c for keys, c in self.COMMANDS if key in keys), None)
            if command:
                held = command(self, key_line) is True
            if not held:
                self._next()
        if not self.tables_written:
            self._tables()

    # Commands; each gives True if the line buffer holds the next line.

    def _numbers(self, *names):
        self._next()
        self.fields.parse(len(names))
        for n, name in enumerate(names, 1):
            setattr(self.para, name, self.fields.num(n))

    def _seven(self, _):
        self._numbers("dX", "dY", "dZ")
        self._numbers("Omega", "Phi", "Kappa")
        self._numbers("dS")
        self.dirty = True

    def _first_adjustment(self, _):
        self.fields.parse(4)
        p, f = self.para, self.fields
        p.dPhi, p.dLam, p.dH = f.num(2), f.num(3), f.num(4)

    def _correction(self, _):
        self.para.CorrFlag = 1

    def _no_correction(self, _):
        self.para.CorrFlag = 0

    def _zone(self, _):
        zone = int16(round(float(self.fields.sng(2))))  # halves go to the even neighbour
        p = self.para
        p.Zone = zone
        p.a, p.f = Num(6377397.155), Num(299.1528128)
        p.Phi0, p.X0, p.Y0, p.S0 = Num(38), Num(550000 if zone == 5 else 500000), Num(200000), Num(1)
        p.Lam0 = Num({1: 125, 3: 129, 4: 131}.get(zone, 127))
        self.dirty = True

    def _add(self, _):
        self.para.AddFlag = 1 if self.fields.sng(2) > 0 else 0
        self.dirty = True

    def _form_word(self):
        return upper(self.fields.join(2, 4)[:4])

    def _input(self, _):
        self.angle_in = 1 if self._form_word() == "DEG " else 4

    def _output(self, _):
        self.angle_out = {"DEG ": 1, "DDD ": 2, "DDD-": 3}.get(self._form_word(), 4)

    def _tm(self, key_line):
        if "PARA" not in (key_line[2:6], key_line[3:7]):
            return self._points(self._tm_body)
        self._numbers("a", "f")
        self._numbers("Phi0", "Lam0")
        self._numbers("X0", "Y0")
        self._numbers("S0")
        self.para.Zone = 6
        self.dirty = True

    def _utm(self, key_line):
        p = self.para
        if "PARA" in (key_line[3:7], key_line[4:8]):
            self._numbers("Ua", "Uf")
            self._numbers("UPhi0", "ULam0")
            self._numbers("UX0", "UY0")
            self._numbers("US0")
            p.UZone = 3
            self.dirty = True
            return False
        self.fields.parse(4)
        if self.fields.num(3) != 0 or self.fields.num(4) != 0:
            return self._points(self._utm_body)
        if self.fields.num(2) == 123:
            p.UZone, p.ULam0 = 1, Num(123)
        if self.fields.num(2) == 129:
            p.UZone, p.ULam0 = 2, Num(129)
        return False

    def _wgs(self, _):
        return self._points(self._wgs_body)

    def _ugs(self, _):
        return self._points(self._ugs_body)

    def _continues(self):
        """Reads the line after a point or a pair of names: does it belong to the block?"""
        if self.input.at_end():
            return False
        self._next()
        self.fields.parse(6)
        return self.fields.buf[:3] == "   " and self.fields.str(1) != ""

    # Points

    def _points(self, body):
        line = self.fields.buf
        if self.dirty:
            self._run_header()
        self.dirty = False
        self.fields.buf = line
        self.fields.parse(5)
        shift = Num(10.405) / 3600 if self.para.AddFlag == 1 else Num(0)
        k = 2
        while True:
            if len(self.rows) == 10000:
                raise Fault(9)
            row = Point()
            self.rows.append(row)
            row.name = self.fields.str(k)
            body(row, self.fields.num(k + 1), self.fields.num(k + 2), self.fields.num(k + 3), shift)
            if not self._continues():
                return True
            k = 1

    def _degrees(self, x):
        return x if self.angle_in == 1 else self.geo.dms_to_deg(x)

    def _check_zone(self, lam):
        p = self.para
        if p.Zone < 5:
            p.Zone = 1 if lam < 126 else 2 if lam <= 128 else 3 if lam <= 130 else 4
            p.Lam0 = Num(123 + 2 * p.Zone)

    def _check_utm_zone(self, lam):
        p = self.para
        if p.UZone < 4:
            p.UZone = 1 if lam < 126 else 2
            p.ULam0 = Num(123 if lam < 126 else 129)

    def _to_tm(self, row, shift):
        p = self.para
        self._check_zone(row.UserLam)
        row.TmX, row.TmY = self.geo.geo_to_tm(
            row.UserPhi, row.UserLam, p.a, p.f, p.X0, p.Y0, p.Phi0, p.Lam0 + shift, p.S0)

    def _to_utm(self, row):
        p = self.para
        self._check_utm_zone(row.UserLam)
        row.UtmX, row.UtmY = self.geo.geo_to_tm(
            row.UserPhi, row.UserLam, p.Ua, p.Uf, p.UX0, p.UY0, p.UPhi0, p.ULam0, p.US0)

    def _wgs_body(self, row, phi, lam, h, shift):
        p = self.para
        row.WgsPhi, row.WgsLam, row.WgsH = self._degrees(phi), self._degrees(lam), h
        row.UserPhi, row.UserLam, row.UserH = self.geo.wgs_to_user(row.WgsPhi, row.WgsLam, h, p.a, p.f)
        height = row.UserH - self.geo.geoid_height_bessel(row.UserPhi, row.UserLam)
        row.UserPhi += p.dPhi / 3600
        row.UserLam += p.dLam / 3600
        row.UserH = height + p.dH
        self._find_corr(row)
        row.UserPhi += row.CorrPhi
        row.UserLam += row.CorrLam
        row.UserH += row.CorrH
        self._to_tm(row, shift)
        row.TmH = row.UserH
        self._to_utm(row)
        row.UtmH = row.TmH

    def _back_to_wgs(self, row):
        p = self.para
        height = self.geo.geoid_height_bessel(row.UserPhi, row.UserLam) + row.UserH
        row.WgsPhi, row.WgsLam, row.WgsH = self.geo.user_to_wgs(row.UserPhi, row.UserLam, height, p.a, p.f)
        row.WgsPhi -= p.dPhi / 3600
        row.WgsLam -= p.dLam / 3600
        row.WgsH -= p.dH
        self._find_corr(row)
        row.WgsPhi -= row.CorrPhi
        row.WgsLam -= row.CorrLam
        row.WgsH -= row.CorrH

    def _ugs_body(self, row, phi, lam, h, shift):
        row.UserPhi, row.UserLam = self._degrees(phi), self._degrees(lam)
        row.UserH = row.TmH = h
        self._back_to_wgs(row)
        self._to_tm(row, shift)
        row.TmH = row.UserH
        self._to_utm(row)
        row.UtmH = row.TmH

    def _tm_body(self, row, x, y, h, shift):
        p = self.para
        row.TmX, row.TmY = x, y
        row.TmH = row.UserH = row.UtmH = h
        row.UserPhi, row.UserLam = self.geo.tm_to_geo(x, y, p.a, p.f, p.X0, p.Y0, p.Phi0, p.Lam0 + shift, p.S0)
        self._back_to_wgs(row)
        self._to_utm(row)

    def _utm_body(self, row, x, y, h, shift):
        p = self.para
        row.UtmX, row.UtmY = x, y
        row.UtmH = row.UserH = h
        row.UserPhi, row.UserLam = self.geo.tm_to_geo(x, y, p.Ua, p.Uf, p.UX0, p.UY0, p.UPhi0, p.ULam0, p.US0)
        self._back_to_wgs(row)
        self._to_tm(row, shift)  # and no height for the TM table

    # Reports

    def _tables(self):
        self.tables_written = True
        p, out = self.para, self.out.line

        def cells(row, first, second, height, angle):
            cell = (lambda x: self.geo.angle_text(x, self.angle_out)) if angle else (lambda x: format_num(x, 12, 6))
            out(format_text(row.name, 10) + cell(first) + cell(second) + format_num(height, 8, 4))

        out("WGS 타윈체 경위도 및 타원체고")
        out(" 명칭               위도               경도          타원체고  ")
        for r in self.rows:
            cells(r, r.WgsPhi, r.WgsLam, r.WgsH, True)
        out("")
        out("사용자 타윈체 경위도 및 표고")
        out(" 명칭               위도               경도              표고")
        for r in self.rows:
            cells(r, r.UserPhi, r.UserLam, r.UserH, True)
        out("")
        out("사용자 타윈체 직교좌표 및 표고 (TM) (사용자 타원체 경위도 -> 사용자 타원체 TM)")
        out(GRID_HEADING)
        for r in self.rows:
            cells(r, r.TmX, r.TmY, r.TmH, False)
        out("")
        out("")
        out("사용자 타윈체 직교좌표 및 표고 (UTM) (사용자 타원체 경위도 -> 사용자 타원체 UTM)")
        out(GRID_HEADING)
        for r in self.rows:
            cells(r, r.UtmX, r.UtmY, r.UtmH, False)
        out("")
        out("")
        out("WGS 타윈체 직교좌표 및 표고 (WGS 경위도 -> WGS 타원체 UTM)")
        out(GRID_HEADING)
        for r in self.rows:
            self._check_utm_zone(r.WgsLam)
            x, y = self.geo.geo_to_tm(
                r.WgsPhi, r.WgsLam, WGS_A, WGS_FLATTENING, p.UX0, p.UY0, p.UPhi0, p.ULam0, p.US0)
            cells(r, x, y, r.TmH, False)
        out("")

    def _row_named(self, name):
        return next((r for r in self.rows if upper(r.name) == upper(name)), None)

    def _distance(self, _):
        if not self.tables_written:
            self._tables()
        for line in ("", "Distance Calculation", ""):
            self.out.line(line)
        self.fields.parse(5)
        k = 2
        while True:
            names = self.fields.str(k), self.fields.str(k + 1)
            one, other = map(self._row_named, names)
            for name, row in zip(names, (one, other)):
                if row is None:
                    self.out.line("거리계산을 위한 점 " + name + "이 없습니다.")
            if one and other:
                direction, distance = distance_and_direction(one.TmX, one.TmY, other.TmX, other.TmY)
                self.out.line(
                    "From   " + format_text(names[0], 10) + "    To   " + format_text(names[1], 10)
                    + "    Direction =" + self.geo.angle_text(direction, self.angle_out)
                    + "     Distance =" + format_num(distance, 7, 4))  # fmt: skip
            if not self._continues():
                return True
            k = 1

    def _run_header(self):
        p, out, F = self.para, self.out.line, format_num
        out("WGS -> GP 변환하는 파라미터")
        out(f"     dx  = {F(p.dX, 5, 3)}     dy  = {F(p.dY, 5, 3)}       dz  = {F(p.dZ, 5, 3)}")
        out(f"  Omega  = {F(p.Omega, 5, 3)}    Phi  = {F(p.Phi, 5, 3)}    Kappa  = {F(p.Kappa, 5, 3)}")
        out(f"     ds  = {F(p.dS, 3, 5)}")
        out("")
        out("1 차 조정량 WGS -> GP후 GP위도에 dphi초가 가산됨, 경도도 같고, 높이는 m 단위임")
        out(f"    dphi = {F(p.dPhi, 3, 5)}   dlam  = {F(p.dLam, 3, 5)}       dh  = {F(p.dH, 3, 5)}")
        out("    ")
        out("기존점에 의한 2차 보정" + (" - 보정함" if p.CorrFlag == 1 else " - 보정 안함"))
        out("")
        out("경위도 -> 직교좌료로 변환하는 파라미터")
        out(f"     장반경 = {F(p.a, 8, 4)}    편평도 = 1/{F(p.f, 3, 8)}")
        out(f"   원점위도 = {F(p.Phi0, 3, 5)}      원점경도 = {F(p.Lam0, 3, 5)}")
        out(f"   원점 X   = {F(p.X0, 7, 1)}      원점 Y   = {F(p.Y0, 7, 1)}")
        out(f" 축척계수 S = {F(p.S0, 2, 6)}")
        out(f" 경도에가산 = {F(10.405 if p.AddFlag == 1 else 0, 3, 3)}초")
        out("")
        out("각도입력형태 = " + IN_FORMS[1 if self.angle_in == 1 else 4])
        out("")
        out("")
        out("각도출력형태 = " + OUT_FORMS[self.angle_out])
        out("")
        out("")
        self.geo.set_datum_para(p.dX, p.dY, p.dZ, p.Omega, p.Phi, p.Kappa, p.dS, p.Kind)
        if p.CorrFlag == 0:
            return
        self._read_known_points()
        self._known_point_report()

    # Known points

    def _read_known_points(self):
        if self.known_data is None:
            raise Fault(53)
        self.known_count = 0
        file, fields = Input(self.known_data), self.fields
        fields.buf = file.line()
        test_end = True
        while not (test_end and file.at_end()):
            fields.parse(8)
            test_end = fields.str(1) == "" or fields.str(1)[0] == "*"
            if not test_end:
                self.known_count += 1
                if self.known_count > 200:
                    raise Fault(9)
                k = self.known[self.known_count]
                k.Name = fields.str(1)
                k.WgsPhi, k.WgsLam, k.WgsH, k.UserPhi, k.UserLam, k.UserH = map(fields.num, range(2, 8))
                k.Weight = fields.sng(8)
                for angle in ("WgsPhi", "WgsLam", "UserPhi", "UserLam"):
                    setattr(k, angle, self.geo.dms_to_deg(getattr(k, angle)))
            fields.buf = file.line()

    def _length(self, MPhi, MLam, dphi, dlam):
        return sqrt((MLam * dlam * 3600) ** 2 + (MPhi * dphi * 3600) ** 2)

    def _known_point_report(self):
        p, out, F = self.para, self.det.line, format_num
        points = self.known[1 : self.known_count + 1]
        count = Num(self.known_count)

        def A(x):
            return self.geo.angle_text(x, self.angle_out)

        def row(label, phi, lam, h, behind=""):
            out(" " * 10 + label + A(phi) + A(lam) + F(h, 8, 4) + behind)

        for line in (" ", " 상세한 보정치 자료 ", " ", " "):
            out(line)
        out("위치명     좌표계                위도               경도            표고   ")
        SumPhi = SumLam = SumH = SumL = Num(0)
        NH = 0
        for k in points:
            CPhi, CLam, CH = self.geo.wgs_to_user(k.WgsPhi, k.WgsLam, k.WgsH, p.a, p.f)
            CPhi += p.dPhi / 3600
            CLam += p.dLam / 3600
            k.DPhi, k.DLam = k.UserPhi - CPhi, k.UserLam - CLam
            SumPhi += k.DPhi
            SumLam += k.DLam
            L = self._length(*self.geo.arc_sec_len(CPhi, CLam), k.DPhi, k.DLam)
            SumL += L
            if k.WgsH != 0 and k.UserH != 0:
                NH += 1
                CH = CH - self.geo.geoid_height_bessel(CPhi, CLam) + p.dH
                k.DH = k.UserH - CH
                SumH += k.DH
            out(format_text(k.Name, 10) + " WGS         " + A(k.WgsPhi) + A(k.WgsLam) + F(k.WgsH, 8, 4)
                + " 가중치 =" + F(k.Weight, 4, 2))  # fmt: skip
            row(" 사용자타원체", k.UserPhi, k.UserLam, k.UserH)
            row(" 계산치      ", CPhi, CLam, CH)
            row(" 차이        ", k.DPhi, k.DLam, k.DH, "    L =" + F(L, 3, 5))
            out(" ")
        out(" ")
        row(" 합계        ", SumPhi, SumLam, SumH, "    L =" + F(SumL, 3, 5))
        MeanPhi, MeanLam, MeanH = SumPhi / count, SumLam / count, SumH / NH
        row(" 평균        ", MeanPhi, MeanLam, MeanH, "    L =" + F(SumL / count, 3, 5))
        out(" ")
        out(" ")
        SqPhi = SqLam = SqH = Num(0)
        for k in points:
            SqPhi += (k.DPhi - MeanPhi) ** 2
            SqLam += (k.DLam - MeanLam) ** 2
            if k.WgsH != 0 and k.UserH != 0:
                NH += 1  # on top of the first pass
                SqH += (k.DH - MeanH) ** 2
        SdPhi, SdLam, SdH = sqrt(SqPhi / count), sqrt(SqLam / count), sqrt(SqH / NH)
        MPhi, MLam = self.geo.arc_sec_len(Num(35), Num(127))
        L = sqrt((SdLam * MLam * 3600) ** 2 + (MPhi * SdPhi * 3600) ** 2)
        row("평균편차     ", SdPhi, SdLam, SdH, "    L =" + F(L, 3, 5))
        out(" ")
        outliers = ""
        for k in points:
            if abs(k.DPhi - MeanPhi) > 3 * SdPhi:
                outliers += k.Name + " 위도,  "
            if abs(k.DLam - MeanLam) > 3 * SdLam:
                outliers += k.Name + " 경도,  "
        if outliers:
            out(" 다음 보정점들에서 " + F(3, 2, 1)
                + " 배의 표준편차보다 큰 차이가 발견되었습니다. 체크후 다시 실행하십시오")  # fmt: skip
            out(" " + outliers)
            out("")
        for line in ("", " 각 좌표점 별 보정량", ""):
            out(line)
        out("명칭                           위도보정량         경도보정량      표고보정      보정거리")
        out("")

    def _find_corr(self, row):
        if self.para.CorrFlag == 0:
            row.CorrPhi = row.CorrLam = row.CorrH = Num(0)
            return
        Phi, Lam = row.WgsPhi, row.WgsLam
        SumPhi = SumLam = SumH = SumW = SumWH = Num(0)
        for k in self.known[1 : self.known_count + 1]:
            d1, d2 = k.WgsPhi - Phi, k.WgsLam - Lam
            Q = d1 * d1 * 1.2 + d2 * d2
            if Q == 0:
                Q = Num(1e-8)
            w = single(k.Weight / (Q * Q))
            SumPhi += w * k.DPhi
            SumLam += w * k.DLam
            SumW += w
            if k.DH != 0:
                SumH += w * k.DH
                SumWH += w
        row.CorrPhi, row.CorrLam, row.CorrH = SumPhi / SumW, SumLam / SumW, SumH / SumWH
        L = self._length(*self.geo.arc_sec_len(Phi, Lam), row.CorrPhi, row.CorrLam)
        self.det.line(
            format_text(row.name, 10) + " " * 13 + self.geo.angle_text(row.CorrPhi, self.angle_out)
            + self.geo.angle_text(row.CorrLam, self.angle_out) + format_num(row.CorrH, 8, 4)
            + "    L =" + format_num(L, 3, 5))  # fmt: skip

    COMMANDS = (
        (("7 ", "7P"), _seven), (("1S", "1 "), _first_adjustment), (("CO",), _correction),
        (("NO",), _no_correction), (("ZO",), _zone), (("AD",), _add), (("IN",), _input),
        (("OU",), _output), (("TM",), _tm), (("UT",), _utm), (("WG",), _wgs), (("UG",), _ugs),
        (("DI",), _distance),
    )  # fmt: skip


def main():
    data, folder = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    known = folder / "kelvo.cor"
    run = Run(data.read_bytes(), known.read_bytes() if known.exists() else None)
    fault = run.run()
    (folder / (data.stem + ".out")).write_bytes(run.out.data())
    (folder / "kelvo.det").write_bytes(run.det.data())
    for message in run.messages:
        print("message:", message, file=sys.stderr)
    if fault:
        print(f"run-time error {fault}: ", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
