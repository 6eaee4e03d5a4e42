#!/usr/bin/env python3
"""Tests the check of the documents' figures: a wrong one must be found."""

import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

TOP = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(TOP / "scripts/figures.d"))

import maps  # noqa: E402
import pages  # noqa: E402


class FiguresTest(unittest.TestCase):
    def pages_with(self, page, old, new):
        with tempfile.TemporaryDirectory() as folder:
            for name in pages.PAGES:
                shutil.copy(TOP / "docs" / name, folder)
            path = pathlib.Path(folder) / page
            text = path.read_text(encoding="utf-8")
            self.assertTrue(old in text, old)
            path.write_text(text.replace(old, new, 1), encoding="utf-8")
            command = [sys.executable, TOP / "scripts/figures", "--check", "pages", "--docs", folder]
            return subprocess.run(command, capture_output=True, text=True)

    def test_unchanged_pages_pass(self):
        self.assertEqual(self.pages_with("numbers.md", "Seoul", "Seoul").returncode, 0)

    def test_one_digit_changed_in_either_page_is_found(self):
        seoul = pages.read_record()["height.run.seoul"]
        self.assertEqual(self.pages_with("numbers.md", f"{seoul} m in Seoul", "99 m in Seoul").returncode, 1)
        self.assertEqual(self.pages_with("numbers.ko.md", f"서울은 {seoul} m", "서울은 99 m").returncode, 1)

    def test_a_figure_typed_by_hand_is_found(self):
        for text in ("about 12 m off", "0.3 mm", "4 ppm.", "10.405 seconds", "37.5 degrees", "3초", "38도", "1-2 km"):
            self.assertTrue(pages.BARE.search(text), text)
        for text in ("EPSG:5174", "zone 5 and", "points 16 to 25", "{{=38}}", "WGS84 m", "1 of"):
            self.assertFalse(pages.BARE.search(text), text)

    def test_a_value_is_another_one_beyond_its_last_place(self):
        self.assertFalse(pages.unlike(18.4, "18"))
        self.assertTrue(pages.unlike(18.7, "18"))
        self.assertTrue(pages.unlike(0.0132, "0.012"))
        self.assertTrue(pages.unlike("1.162", "1.163"))

    def test_a_picture_without_values_is_found(self):
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder) / "map.png"
            shutil.copy(TOP / "docs/images/start.png", path)
            self.assertIsNone(maps.stored_sample(path))
        self.assertEqual(len(maps.stored_sample(TOP / "docs/images/numbers-scale.png")), 48)


unittest.main()
