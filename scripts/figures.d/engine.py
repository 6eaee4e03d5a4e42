"""Kelvo's own values: its routines, whole runs and the panel, called as programs."""

import pathlib
import subprocess
import tempfile

SEVEN = "115.8 -474.99 -674.11 1.16 -2.31 -1.63 -6.43"  # a run's own parameters
PRESETS = {"2001": "146.44 -507.89 -681.46 0 0 0 0", "three": "144.778 -503.702 -684.67 0 0 0 0"}
BESSEL = "6377397.155 299.1528128"
WGS84 = "6378137 298.257223563"
GRS80 = "6378137 298.257222101"
BATCH, PANEL = 1, 2  # the kind of shift of a run, and of the panel as it first opens


class Kelvo:
    """The programs of one build. Angles are decimal degrees, lengths metres."""

    def __init__(self, folder):
        self.folder = pathlib.Path(folder)

    def missing(self):
        return [n for n in ("routine_driver", "kelvo-batch", "form_driver") if not (self.folder / n).exists()]

    # Routines

    def transcript(self, lines):
        run = subprocess.run([self.folder / "routine_driver"], input="\n".join(lines) + "\n",
                             capture_output=True, text=True, encoding="utf-8", check=True)  # fmt: skip
        return run.stdout.splitlines()

    def answers(self, lines):
        """The numbers of each line's answer; a message or a fault ends the calculation."""
        found = []
        for line in self.transcript(lines):
            name, equals, numbers = line.partition(" = ")
            if not equals and "|" in line:
                raise RuntimeError(line)
            found.append([float(n) for n in numbers.split()])
        if len(found) != len(lines):
            raise RuntimeError(f"{len(found)} answers to {len(lines)} lines")
        return found

    def _shifted(self, routine, points, kind, seven, ellipsoid):
        lines = [f"SetDatumPara {seven} {kind}"]
        lines += [f"{routine} {p:.17g} {l:.17g} {h:.17g} {ellipsoid}" for p, l, h in points]
        return [tuple(a[-3:]) for a in self.answers(lines)[1:]]

    def to_user(self, points, kind=BATCH, seven=SEVEN, ellipsoid=BESSEL):
        return self._shifted("WgsToUser", points, kind, seven, ellipsoid)

    def to_wgs(self, points, kind=BATCH, seven=SEVEN, ellipsoid=BESSEL):
        return self._shifted("UserToWgs", points, kind, seven, ellipsoid)

    def geoid(self, points, bessel=True):
        """The stored geoid's height at each latitude and longitude."""
        name = "GeoidHeightBessel" if bessel else "GeoidHeight"
        lines = [f"SetDatumPara {SEVEN} 1"] + [f"{name} {p[0]:.17g} {p[1]:.17g}" for p in points]
        return [a[-1] for a in self.answers(lines)[1:]]

    def to_grid(self, points, origins, ellipsoid=BESSEL):
        """X and Y; `origins` gives X0 Y0 Phi0 Lam0 S0 as text for each point."""
        lines = [f"GeoToTM {p[0]:.17g} {p[1]:.17g} {ellipsoid} {o}" for p, o in zip(points, origins)]
        return [tuple(a[-2:]) for a in self.answers(lines)]

    def from_grid(self, points, origins, ellipsoid=BESSEL):
        lines = [f"TMToGeo {p[0]:.17g} {p[1]:.17g} {ellipsoid} {o}" for p, o in zip(points, origins)]
        return [tuple(a[-2:]) for a in self.answers(lines)]

    # Whole runs

    def run(self, lines, known=None):
        """The report of a run of these lines, angles printed as decimal degrees; see `Run`."""
        with tempfile.TemporaryDirectory() as folder:
            folder = pathlib.Path(folder)
            (folder / "run.dat").write_bytes("\r\n".join(["OUTPUT deg", *lines, "end", "", ""]).encode("cp949"))
            if known is not None:
                (folder / "kelvo.cor").write_bytes(known)
            done = subprocess.run([self.folder / "kelvo-batch", "--app-folder", folder, folder / "run.dat"],
                                  capture_output=True, text=True, encoding="utf-8")  # fmt: skip
            out = folder / "run.out"
            return Run(out.read_bytes().decode("cp949") if out.exists() else "", done.stderr, done.returncode)

    # The panel

    def form(self, script, folder, name):
        """The values of `name` that the form answers, in their order."""
        done = subprocess.run([self.folder / "form_driver", folder], input="\n".join(script) + "\n",
                              capture_output=True, text=True, encoding="utf-8", check=True)  # fmt: skip
        return [line.partition("=")[2] for line in done.stdout.splitlines() if line.startswith(name + "=")]

    def panel(self, script, boxes):
        """The texts of boxes after a script on a first start."""
        with tempfile.TemporaryDirectory() as folder:
            (pathlib.Path(folder) / "data").mkdir()
            return [self.form([*script, f"get {box}.text"], folder, f"{box}.text")[0] for box in boxes]


class Run:
    """wgs, user: latitude, longitude, height; tm, utm, wgsutm: X, Y, height. All by name."""

    TABLES = (("wgs", "WGS 타윈체 경위도 "), ("user", "사용자 타윈체 경위도 "),
              ("tm", "사용자 타윈체 직교좌표 및 표고 (TM)"), ("utm", "사용자 타윈체 직교좌표 및 표고 (UTM)"),
              ("wgsutm", "WGS 타윈체 직교좌표"))  # fmt: skip

    def __init__(self, report, errors, exit_code):
        self.report, self.errors, self.exit_code = report, errors, exit_code
        lines = report.split("\r\n")
        for attribute, heading in self.TABLES:
            at = next((i for i, line in enumerate(lines) if line.startswith(heading)), None)
            rows = {}
            for line in lines[at + 2 :] if at is not None else []:
                if not line.strip():
                    break
                name, first, second, height = line.split()
                rows[name] = float(first), float(second), float(height)
            setattr(self, attribute, rows)


def wgs_lines(points):
    """Data-file lines for a block of WGS84 points in decimal degrees, names p0, p1 and on."""
    return [f"{'WGS' if i == 0 else '   '} p{i} {p:.10f} {l:.10f} {h:.4f}" for i, (p, l, h) in enumerate(points)]
