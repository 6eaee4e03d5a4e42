#!/usr/bin/python3
"""The Python module kelvo, beside kelvo-convert.

    python_module.py KELVO_CONVERT [unittest options], with the module on PYTHONPATH
"""

import csv
import io
import pathlib
import random
import subprocess
import sys
import tempfile
import threading
import time
import unittest

import kelvo
import numpy as np

PROGRAM = sys.argv.pop(1)
COLUMNS = ("wgs_lat wgs_lon wgs_h user_lat user_lon user_h tm_x tm_y tm_h tm_lon0 utm_x utm_y utm_h utm_lon0 "
           "wgsutm_x wgsutm_y wgsutm_h wgsutm_lon0").split()  # fmt: skip
KNOWN = "기1 37.30 127.00 100 37.2950 127.0008 80 1\n기2 36.30 128.00 100 36.2950 128.0008 80 2\n*\n\n"


class Definition(unittest.TestCase):
    def test_texts_that_are_wrong_are_value_errors_with_line_and_reason(self):
        for text in ("IN deg", "utm 117", "add x", "7 para\n1 2 3\n", "WGS a 1 2 3", "CORRECTION"):
            with self.assertRaisesRegex(ValueError, "line 1: "):
                kelvo.Converter(parameters=text)
        with self.assertRaises(ValueError):
            kelvo.Converter("CORRECTION\n", "*\n\n")

    def test_texts_may_be_left_out_and_be_given_by_place(self):
        self.assertEqual(kelvo.Converter().convert("wgs", 37, 127)["tm_lon0"], 127)
        self.assertEqual(kelvo.Converter("zone 3\n", None).convert("tm", 450000, 200000)["tm_lon0"], 129)
        self.assertEqual(kelvo.Converter("\ufeffzone 3\n").convert("tm", 450000, 200000)["tm_lon0"], 129)

    def test_known_points_count_where_the_correction_is_on(self):
        off = kelvo.Converter("", KNOWN).convert("wgs", 37, 127, 0)
        on = kelvo.Converter("CORRECTION", KNOWN).convert("wgs", 37, 127, 0)
        self.assertEqual(off["tm_x"], kelvo.Converter().convert("wgs", 37, 127, 0)["tm_x"])
        self.assertNotEqual(on["tm_x"], off["tm_x"])


class Arrays(unittest.TestCase):
    def setUp(self):
        self.converter = kelvo.Converter()

    def test_the_columns_have_their_names_and_types(self):
        r = self.converter.convert("wgs", [37.0], [127.0], [0.0])
        self.assertEqual(list(r.dtype.names), [*COLUMNS, "status"])
        self.assertTrue(all(r.dtype[name] == np.float64 for name in COLUMNS))
        self.assertEqual(r.dtype["status"], np.int32)

    def test_scalars_give_an_array_without_dimensions(self):
        r = self.converter.convert("wgs", 37.5, 127.0, 50.0)
        self.assertIsInstance(r, np.ndarray)
        self.assertEqual(r.shape, ())
        self.assertEqual(float(r["wgs_lat"]), 37.5)
        self.assertEqual(int(r["status"]), 0)

    def test_inputs_broadcast(self):
        lat, lon = np.linspace(33, 39, 4)[:, None], np.linspace(125, 131, 5)[None, :]
        r = self.converter.convert("wgs", lat, lon, 7)
        self.assertEqual(r.shape, (4, 5))
        for i in range(4):
            for j in range(5):
                self.assertEqual(r[i, j], self.converter.convert("wgs", lat[i, 0], lon[0, j], 7.0)[()])
        self.assertEqual(self.converter.convert("wgs", [], []).shape, (0,))
        self.assertEqual(self.converter.convert("wgs", np.zeros((0, 3)), 1.0).shape, (0, 3))

    def test_any_order_of_memory_and_any_type_of_number_will_do(self):
        lat = np.array([[33, 34], [35, 36]], dtype=np.int32)
        r = self.converter.convert("wgs", lat.T, np.asfortranarray(lat + 92.0), lat[::-1, ::-1].astype(np.float32))
        for i in range(2):
            for j in range(2):
                self.assertEqual(r[i, j], self.converter.convert("wgs", lat[j, i], lat[i, j] + 92.0, lat[1 - i, 1 - j])[()])

    def test_the_height_may_be_left_out(self):
        self.assertEqual(self.converter.convert("wgs", 37, 127)[()], self.converter.convert("wgs", 37, 127, h=0)[()])

    def test_what_does_not_fit_is_a_value_error(self):
        with self.assertRaises(ValueError):
            self.converter.convert("wgs", [1, 2, 3], [1, 2])
        for system in ("bessel", "WGS", "wgsutm", ""):
            with self.assertRaises(ValueError):
                self.converter.convert(system, 37, 127)

    def test_a_bad_point_has_no_numbers_and_a_status_that_says_why(self):
        r = self.converter.convert("wgs", [37, np.nan, 40000, np.inf, 37], 127, [0, 0, 0, 0, 1e308])
        good = r["status"] == 0
        self.assertEqual(list(good), [True, False, False, False, False])
        for name in COLUMNS:
            self.assertTrue(np.array_equal(np.isnan(r[name]), ~good), name)
        for code in r["status"][~good]:
            self.assertGreater(len(self.converter.status_text(int(code))), 0)
        self.assertEqual(self.converter.status_text(0), "")

    def test_the_inputs_stay_as_they_are(self):
        lat = np.array([37.0, 38.0])
        self.converter.convert("wgs", lat, 127)
        self.assertEqual(list(lat), [37, 38])


class SameNumbers(unittest.TestCase):
    def test_rounded_they_are_those_of_kelvo_convert(self):
        r = random.Random(14)
        for parameters, known in (("", None), ("add 0\nzone 3\n", None), ("zone 9\n1st 0.1 0.2 0.3\n", None), ("CORRECTION", KNOWN)):
            for system in ("wgs", "user", "tm", "utm"):
                low, high = (33, 124.5), (39, 132)
                if system not in ("wgs", "user"):
                    low, high = ((0, 0), (650000, 400000)) if system == "tm" else ((3.6e6, 2e5), (4.3e6, 8e5))
                points = [(r.uniform(low[0], high[0]), r.uniform(low[1], high[1]), r.uniform(-50, 2000)) for _ in range(300)]
                points += [(40000, 127, 0), (1e200, 1, 1)]
                self.compare(parameters, known, system, points)

    def compare(self, parameters, known, system, points):
        with tempfile.TemporaryDirectory() as name:
            folder = pathlib.Path(name)
            (folder / "p").write_text(parameters)
            (folder / "k").write_text(known or "")
            text = "".join(f"P,{x!r},{y!r},{h!r}\n" for x, y, h in points)
            done = subprocess.run([PROGRAM, "--from", system, "--parameters", folder / "p", "--known-points", folder / "k", "--quiet"],
                                  input=text.encode(), capture_output=True)  # fmt: skip
        rows = list(csv.DictReader(io.StringIO(done.stdout.decode("utf-8"))))
        converter = kelvo.Converter(parameters, known)
        found = converter.convert(system, *np.array(points).T)
        self.assertEqual(len(rows), len(found))
        for row, point in zip(rows, found):
            self.assertEqual(row["status"] == "", point["status"] == 0, row)
            if row["status"] == "":
                for column in COLUMNS:
                    # A cell rounds the fifteen digits of the number.
                    half = 0.5 * 10.0 ** -len(row[column].partition(".")[2]) + abs(point[column]) * 5e-15
                    self.assertAlmostEqual(float(row[column]), float(point[column]), delta=half, msg=column)


class Threads(unittest.TestCase):
    def test_the_interpreter_goes_on_while_points_are_computed(self):
        lat = np.full(400000, 37.5)
        converter = kelvo.Converter()
        done = threading.Event()
        worker = threading.Thread(target=lambda: (converter.convert("wgs", lat, 127.0), done.set()))
        steps = 0
        worker.start()
        while not done.is_set():
            steps += 1
            time.sleep(0.001)
        worker.join()
        self.assertGreater(steps, 5)

    def test_threads_share_a_converter(self):
        converter = kelvo.Converter("CORRECTION", KNOWN)
        lat = np.linspace(33, 39, 20000)
        expected = converter.convert("wgs", lat, 127.0)
        results = [None] * 4

        def work(n):
            results[n] = converter.convert("wgs", lat, 127.0)

        workers = [threading.Thread(target=work, args=(n,)) for n in range(4)]
        for worker in workers:
            worker.start()
        for worker in workers:
            worker.join()
        for result in results:
            self.assertTrue(np.array_equal(result, expected))


class Documents(unittest.TestCase):
    def test_every_name_has_a_docstring_and_a_stub(self):
        stub = (pathlib.Path(kelvo.__file__).parent / "__init__.pyi").read_text()
        for name in ("__init__", "convert", "status_text"):
            self.assertTrue(getattr(kelvo.Converter, name).__doc__)
            self.assertIn(f"def {name}(", stub)
        self.assertTrue((pathlib.Path(kelvo.__file__).parent / "py.typed").exists())
        self.assertRegex(kelvo.__version__, r"^\d+\.\d+\.\d+$")

    def test_the_example_of_the_module_gives_what_it_says(self):
        import doctest

        self.assertEqual(doctest.testmod(kelvo).failed, 0)


if __name__ == "__main__":
    unittest.main()
