"""Values from outside: PROJ's programs, its EPSG register and the EGM96 geoid in Debian's proj-data."""

import os
import re
import shutil
import subprocess

PROGRAMS = ("cs2cs", "cct", "proj", "projinfo")


class Proj:
    def missing(self):
        """A word on what isn't here, or nothing."""
        lacking = [program for program in PROGRAMS if shutil.which(program) is None]
        if lacking:
            return f"{', '.join(lacking)} not found (Debian: proj-bin)"
        try:
            if abs(self.egm96([(37.5, 127.0, 0.0)])[0]) < 1:
                return "cs2cs knows no EGM96 heights (Debian: proj-data has egm96_15.gtx)"
        except (RuntimeError, IndexError):
            return "cs2cs gives no EGM96 heights (Debian: proj-data has egm96_15.gtx)"
        return ""

    def _run(self, arguments, lines):
        run = subprocess.run(arguments, input="\n".join(lines) + "\n", capture_output=True, text=True,
                             env={**os.environ, "PROJ_NETWORK": "OFF", "LC_ALL": "C"})  # fmt: skip
        rows = [line.split() for line in run.stdout.splitlines()]
        if run.returncode or len(rows) != len(lines) or any("*" in row for row in rows):
            raise RuntimeError(f"{' '.join(arguments)}: {run.stderr.strip() or 'a point failed'}")
        return [[float(x) for x in row] for row in rows]

    def cs2cs(self, source, target, points):
        """Between systems by their codes, axes as the register has them."""
        lines = [" ".join(f"{x:.17g}" for x in p) for p in points]
        return self._run(["cs2cs", "-f", "%.12f", *source.split(), "+to", *target.split()], lines)

    def cct(self, pipeline, points):
        """A pipeline on (latitude, longitude, height); it takes longitude first, in degrees."""
        lines = [f"{p[1]:.17g} {p[0]:.17g} {p[2]:.17g} 0" for p in points]
        return [row[:3] for row in self._run(["cct", "-d", "12", *pipeline.split()], lines)]

    def grid(self, points, X0, Y0, Phi0, Lam0, S0, a, rf, inverse=False):
        """The exact transverse Mercator: northing and easting, or latitude and longitude."""
        options = ["+proj=tmerc", "+algo=poder_engsager", f"+a={a:.17g}", f"+rf={rf:.17g}", f"+lat_0={Phi0:.17g}",
                   f"+lon_0={Lam0:.17g}", f"+k_0={S0:.17g}", f"+x_0={Y0:.17g}", f"+y_0={X0:.17g}"]  # fmt: skip
        arguments = ["proj", "-I", "-f", "%.15f"] if inverse else ["proj", "-f", "%.10f"]
        rows = self._run(arguments + options, [f"{p[1]:.17g} {p[0]:.17g}" for p in points])
        return [(row[1], row[0]) for row in rows]

    def egm96(self, points):
        """The height of EGM96 above the WGS84 ellipsoid. (EPSG:3855, EGM2008, would silently give
        heights back as they came: its grid isn't in Debian.)"""
        rows = self.cs2cs("EPSG:4979", "EPSG:4326+5773", [(p, l, 0.0) for p, l, *_ in points])
        return [-row[2] for row in rows]

    def operation(self, code):
        """An operation of the EPSG register: its text in WKT."""
        run = subprocess.run(["projinfo", f"EPSG:{code}", "-k", "operation", "-o", "WKT2:2019", "-q"],
                             capture_output=True, text=True, check=True)  # fmt: skip
        return run.stdout

    def parameters(self, code):
        """Name to value, as the register has them."""
        wkt = self.operation(code)
        return {name: float(value) for name, value in re.findall(r'PARAMETER\["([^"]+)",([-0-9.]+)', wkt)}

    def area(self, code):
        """South, west, north, east of the operation's area of use."""
        return [float(x) for x in re.search(r"BBOX\[([-0-9.,]+)\]", self.operation(code)).group(1).split(",")]

    def accuracy(self, code):
        return float(re.search(r"OPERATIONACCURACY\[([0-9.]+)\]", self.operation(code)).group(1))
