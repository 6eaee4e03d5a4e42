"""Files that kelvo-convert writes, opened by programs of other families, and read back by itself.

    other_programs.py KELVO_CONVERT KELVO_BATCH

What isn't installed is left out, with a word.
"""

import csv
import io
import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

CONVERT = str(pathlib.Path(sys.argv.pop(1)).resolve())
POINTS = [("점 1", 37.5, 127.1, 30.0), ("똠뷁", 37.2000000001, 126.9, -12.5), ("007", 36.1, 127.5000000001, 0.0)]
BATCH = str(pathlib.Path(sys.argv.pop(1)).resolve())
FORMATS = ("gpkg", "geojson", "shp", "kml", "gpx", "dxf", "xlsx", "ods")


def needs(program):
    return unittest.skipUnless(shutil.which(program), f"{program} is not installed")


def has_ezdxf():
    return subprocess.run(["/usr/bin/python3", "-c", "import ezdxf"], capture_output=True, check=False).returncode == 0


class OtherPrograms(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        rows = "".join(f'"{n}",{p:.10f},{l:.10f},{h:.4f}\n' for n, p, l, h in POINTS)
        (self.folder / "in.csv").write_text("name,lat,lon,h\n" + rows, encoding="utf-8")
        self.convert("in.csv", "text.csv")
        self.table = list(csv.DictReader(io.StringIO((self.folder / "text.csv").read_text(encoding="utf-8"))))

    def run_in(self, *command, code=0):
        environment = dict(os.environ, PROJ_NETWORK="OFF", HOME=str(self.folder))
        ended = subprocess.run(command, cwd=self.folder, env=environment, capture_output=True, text=True, check=False)
        self.assertEqual(ended.returncode, code, ended.stderr)
        return ended

    def convert(self, *arguments, code=0):
        return self.run_in(CONVERT, "--from", "wgs", *arguments, code=code)

    def same_cells(self, rows, columns=None):
        """Rows by name of column hold the numbers of the table."""
        self.assertEqual(len(rows), len(self.table))
        for row, cells in zip(rows, self.table):
            for name, cell in cells.items():
                if name in ("name", "status") or (columns and name not in columns):
                    continue
                self.assertEqual(float(row[name]), float(cell), name)

    @needs("ogrinfo")
    def test_ogrinfo_finds_every_point_name_and_number(self):
        for ending in ("gpkg", "geojson", "shp", "gpx", "xlsx", "ods"):
            with self.subTest(ending):
                self.convert("in.csv", f"o.{ending}")
                layer = ["waypoints"] if ending == "gpx" else []
                found = self.run_in("ogr2ogr", "-f", "CSV", "/vsistdout/", f"o.{ending}", *layer)
                rows = [{re.sub("^ogr_", "", k): v for k, v in r.items()}
                        for r in csv.DictReader(io.StringIO(found.stdout))]
                self.assertEqual([r["name"] for r in rows], [p[0] for p in POINTS])
                # A Shapefile's names have ten letters.
                self.same_cells([{**r, "wgsutm_lon0": r.get("wgsutm_lon0", r.get("wgsutm_lon"))} for r in rows])

    @needs("ogrinfo")
    def test_kml_keeps_the_columns_for_programs_that_read_them(self):
        self.convert("in.csv", "o.kml")
        text = (self.folder / "o.kml").read_text(encoding="utf-8")
        self.assertIn("<name>똠뷁</name>", text)
        for cells in self.table:
            values = re.findall(r'<SimpleData name="tm_x">([^<]*)<', text)
            self.assertIn(float(cells["tm_x"]), [float(v) for v in values])

    def test_geojson_is_wgs84_by_rfc_7946(self):
        self.convert("--to", "tm", "in.csv", "o.geojson")
        data = json.loads((self.folder / "o.geojson").read_text(encoding="utf-8"))
        self.assertNotIn("crs", data)
        for feature, point in zip(data["features"], POINTS):
            self.assertEqual(feature["properties"]["name"], point[0])
            self.assertEqual(feature["geometry"]["coordinates"], [point[2], point[1], point[3]])

    @unittest.skipUnless(has_ezdxf(), "python3-ezdxf is not installed")
    def test_ezdxf_finds_each_point_with_its_name_beside_it(self):
        self.convert("--to", "tm", "in.csv", "o.dxf")
        script = ("import ezdxf, json, re; m = ezdxf.readfile('o.dxf').modelspace(); "
                  "f = lambda t: re.sub(r'\\\\U\\+([0-9a-fA-F]{4})', lambda x: chr(int(x[1], 16)), t).replace('\\\\~', ' '); "
                  "print(json.dumps([[e.dxftype(), f(e.text) if e.dxftype() == 'MTEXT' else '', "
                  "*(e.dxf.insert if e.dxftype() == 'MTEXT' else e.dxf.location)] for e in m]))")
        found = json.loads(self.run_in("/usr/bin/python3", "-c", script).stdout)
        self.assertEqual([f[1] for f in found if f[0] == "MTEXT"], [p[0] for p in POINTS])
        for kind in ("POINT", "MTEXT"):
            for entity, cells in zip([f for f in found if f[0] == kind], self.table):
                self.assertAlmostEqual(entity[2], float(cells["tm_y"]), places=6)
                self.assertAlmostEqual(entity[3], float(cells["tm_x"]), places=6)
                self.assertAlmostEqual(entity[4], float(cells["tm_h"]), places=4)

    @needs("soffice")
    def test_libreoffice_finds_every_cell(self):
        for ending in ("xlsx", "ods"):
            with self.subTest(ending):
                self.convert("in.csv", f"o.{ending}")
                self.run_in("soffice", "--headless", f"-env:UserInstallation=file://{self.folder}/profile",
                            "--convert-to", "csv:Text - txt - csv (StarCalc):44,34,76,1", f"o.{ending}")
                rows = list(csv.DictReader(io.StringIO((self.folder / "o.csv").read_text(encoding="utf-8"))))
                self.assertEqual([r["name"] for r in rows], [p[0] for p in POINTS])
                self.same_cells(rows)

    @needs("gpsbabel")
    def test_gpsbabel_finds_every_waypoint(self):
        for ending in ("gpx", "kml"):
            with self.subTest(ending):
                self.convert("in.csv", f"o.{ending}")
                found = self.run_in("gpsbabel", "-i", ending, "-f", f"o.{ending}", "-o", "gpx", "-F", "-").stdout
                self.assertEqual(re.findall("<name>([^<]*)</name>", found)[-3:], [p[0] for p in POINTS])
                places = re.findall('<wpt lat="([^"]*)" lon="([^"]*)">', found)
                for (lat, lon), point in zip(places, POINTS):
                    self.assertAlmostEqual(float(lat), point[1], places=8)
                    self.assertAlmostEqual(float(lon), point[2], places=8)

    @needs("gpsbabel")
    @needs("ogr2ogr")
    def test_what_other_programs_write_as_kml_and_gpx_is_read(self):
        self.convert("in.csv", "o.gpx")
        self.run_in("gpsbabel", "-i", "gpx", "-f", "o.gpx", "-o", "gpx", "-F", "babel.gpx")
        self.run_in("gpsbabel", "-i", "gpx", "-f", "o.gpx", "-o", "kml,points=1", "-F", "babel.kml")
        self.convert("in.csv", "o.gpkg")
        self.run_in("ogr2ogr", "-f", "KML", "ogr.kml", "o.gpkg", "-dsco", "NameField=name")
        self.run_in("ogr2ogr", "-f", "LIBKML", "lib.kml", "o.gpkg")
        self.run_in("ogr2ogr", "-f", "GPX", "-dsco", "GPX_USE_EXTENSIONS=YES", "-nlt", "POINT", "ogr.gpx", "o.gpkg")
        for name in ("babel.gpx", "babel.kml", "ogr.kml", "lib.kml", "ogr.gpx"):
            with self.subTest(name):
                self.convert("--to", "wgs", name, "back.csv")
                rows = list(csv.DictReader(io.StringIO((self.folder / "back.csv").read_text(encoding="utf-8"))))
                self.assertEqual([r["name"] for r in rows], [p[0] for p in POINTS])
                for row, point in zip(rows, POINTS):
                    self.assertAlmostEqual(float(row["wgs_lat"]), point[1], places=5)
                    self.assertAlmostEqual(float(row["wgs_lon"]), point[2], places=5)

    def test_every_format_is_read_back_into_the_same_table(self):
        for ending in FORMATS:
            with self.subTest(ending):
                self.convert("in.csv", f"o.{ending}")
                self.convert(f"o.{ending}", "back.csv")
                self.assertEqual((self.folder / "back.csv").read_bytes(), (self.folder / "text.csv").read_bytes())

    @needs("ogrinfo")
    def test_the_grid_has_its_code_or_its_parameters(self):
        (self.folder / "own.txt").write_text("1st 0.5 0 0\ntm para\n6377397.155 299.1528128\n37 127.5\n600000 200000\n1\n")
        for ending in ("gpkg", "shp"):
            self.convert("--to", "tm", "in.csv", f"o.{ending}")
            found = self.run_in("gdalsrsinfo", "-e", "-o", "epsg", f"o.{ending}").stdout
            self.assertIn("EPSG:5174", found)
            ended = self.convert("--to", "tm", "--parameters", "own.txt", "in.csv", f"o.{ending}")
            self.assertRegex(ended.stderr, r"15\.\d+ m beside")
            found = self.run_in("gdalsrsinfo", "-o", "proj4", f"o.{ending}").stdout
            self.assertIn("+lon_0=127.502890277778", found)
            self.assertIn("+towgs84=-115.8,474.99,674.11,1.16,-2.31,-1.63,6.43", found)

    def test_points_on_two_origins_are_refused_and_nothing_is_written(self):
        (self.folder / "in.csv").write_text("a,37,127\nb,37,128.5\n")
        ended = self.convert("--to", "tm", "in.csv", "o.gpkg", code=2)
        self.assertIn("127, 129", ended.stderr)
        self.assertFalse((self.folder / "o.gpkg").exists())
        self.convert("--to", "tm", "--geometry", "wgs", "in.csv", "o.gpkg")

    def test_a_geometry_that_the_format_lacks_is_wrong_usage(self):
        for ending in ("geojson", "kml", "gpx", "xlsx", "ods", "csv"):
            self.convert("--geometry", "tm", "in.csv", f"o.{ending}", code=2)
            self.assertFalse((self.folder / f"o.{ending}").exists())

    def test_a_system_that_cannot_be_that_of_from_is_refused(self):
        self.convert("in.csv", "o.gpkg")
        ended = self.run_in(CONVERT, "--from", "tm", "o.gpkg", "x.csv", code=2)
        self.assertIn("경위도", ended.stderr)
        ended = self.run_in(CONVERT, "--from", "user", "o.gpkg", "x.csv", code=2)
        self.assertIn("타원체", ended.stderr)
        self.convert("--to", "tm", "in.csv", "o.shp")
        self.run_in(CONVERT, "--from", "tm", "o.shp", "x.csv")
        (self.folder / "o.prj").unlink()
        ended = self.run_in(CONVERT, "--from", "tm", "o.shp", "y.csv", code=2)
        self.assertIn("좌표계가 없습니다", ended.stderr)
        self.assertFalse((self.folder / "y.csv").exists())

    def test_a_sheet_takes_columns_by_name_as_text_does(self):
        (self.folder / "in.csv").write_text("lon,lat,label\n127.1,37.5,가\n", encoding="utf-8")
        self.convert("--columns", "label,lat,lon", "in.csv", "a.csv")
        for ending in ("xlsx", "ods"):
            self.run_in("ogr2ogr", f"s.{ending}", "in.csv", "-oo", "AUTODETECT_TYPE=YES")
            self.convert("--columns", "label,lat,lon", f"s.{ending}", "b.csv")
            self.assertEqual((self.folder / "a.csv").read_bytes(), (self.folder / "b.csv").read_bytes())

    def batch(self, *arguments, code=0):
        return self.run_in(BATCH, "--app-folder", str(self.folder), *arguments, code=code)

    def test_the_tables_of_a_run_are_exported_as_they_are_printed(self):
        lines = "INPUT deg\r\nWGS " + "\r\n    ".join(f"{n.replace(' ', '')} {p:.10f} {l:.10f} {h}" for n, p, l, h in POINTS)
        (self.folder / "run.dat").write_bytes((lines + "\r\nend\r\n\r\n").encode("cp949"))
        self.batch("--export", "run.kml", "--export", "run.dxf", "--export", "run.csv.xlsx", "--export", "run.gpkg", "run.dat")
        self.run_in(CONVERT, "--from", "wgs", "run.gpkg", "back.csv")
        rows = list(csv.DictReader(io.StringIO((self.folder / "back.csv").read_text(encoding="utf-8"))))
        self.assertEqual([r["name"] for r in rows], [p[0].replace(" ", "") for p in POINTS])
        self.same_cells(rows)
        self.run_in(CONVERT, "--from", "tm", "--to", "tm", "run.dxf", "back.csv")
        rows = list(csv.DictReader(io.StringIO((self.folder / "back.csv").read_text(encoding="utf-8"))))
        self.same_cells(rows, ("tm_x", "tm_y", "tm_h"))
        self.assertTrue((self.folder / "run.out").exists())

    def test_an_export_that_cannot_be_is_said_before_the_run(self):
        (self.folder / "run.dat").write_bytes(b"WGS a 37 127 0\r\nend\r\n\r\n")
        for arguments in (("--export", "a.txt", "run.dat"), ("--export",), ("--export", "a.kml", "run.dat", "in.csv")):
            self.batch(*arguments, code=2)
            self.assertFalse((self.folder / "run.out").exists())
        (self.folder / "kelvo.cor").write_bytes(b"")
        for link, file in (("data.kml", "run.dat"), ("result.kml", "run.out"), ("known.kml", "kelvo.cor")):
            (self.folder / link).symlink_to(file)
            self.assertIn(link, self.batch("--export", link, "run.dat", code=2).stderr)
            self.assertFalse((self.folder / "run.out").exists())
        self.batch("--export", "twice.kml", "--export", "./twice.kml", "run.dat", code=2)
        (self.folder / "kelvo.cor").unlink()
        self.assertIn("none/a.kml", self.batch("--export", "none/a.kml", "run.dat", code=1).stderr)

    def test_more_points_than_a_sheet_holds_are_refused_before_the_first(self):
        with open(self.folder / "many.csv", "w", encoding="ascii") as file:
            file.write("a,37,127\n" * 1048576)
        ended = self.convert("many.csv", "o.xlsx", code=2)
        self.assertIn("1048575", ended.stderr)
        self.assertEqual(sorted(p.name for p in self.folder.glob("*o.xlsx*")), [])


unittest.main()
