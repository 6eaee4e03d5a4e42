"""Coordinate conversion for land surveyors in Korea.

>>> import kelvo
>>> converter = kelvo.Converter(parameters="add 0\\n")
>>> row = converter.convert("wgs", 37.5, 127.0, 50.0)
>>> round(float(row["tm_x"]), 3), int(row["status"])
(444198.767, 0)
"""

from ._kelvo import Converter, __version__

__all__ = ["Converter", "__version__"]
