"""Loads the files of the current folder in QGIS and looks at each; exit code 1 if one isn't right."""

import glob
import math
import os

from qgis.core import (Qgis, QgsApplication, QgsCoordinateReferenceSystem, QgsCoordinateTransform,
                       QgsProject, QgsVectorLayer)

ENDINGS = ("gpkg", "shp", "geojson", "kml", "gpx", "dxf", "xlsx", "ods")
NAMES = ["점 1", "똠뷁", "007"]
NAMES_OF_RUN = ["인천No-3", "인천부두끝", "TP-153", "송도1", "송도2", "계양산"]
# By its EPSG code where one says the very same; the others by their numbers.
CODES = {"wgs.gpkg": "EPSG:4326", "tm.gpkg": "EPSG:5174", "tm.shp": "EPSG:5174",
         "user.gpkg": "EPSG:4162", "user.shp": "EPSG:4162", "wgsutm.gpkg": "EPSG:32652"}
FARTHEST = 0.15  # metres from the WGS84 columns; QGIS takes transformations of its own for a code
WGS84 = QgsCoordinateReferenceSystem("EPSG:4326")


def metres_between(lon, lat, other_lon, other_lat):
    return math.hypot((lat - other_lat) * 111000,
                      (lon - other_lon) * 111320 * math.cos(math.radians(lat)))


def farthest_of(layer):
    """How far the worst point lies from its own WGS84 columns; nothing without them."""
    names = {field.name().lower(): field.name() for field in layer.fields()}
    lat = names.get("wgs_lat") or names.get("ogr_wgs_lat")
    lon = names.get("wgs_lon") or names.get("ogr_wgs_lon")
    if not lat or not lon:
        return None
    to_wgs = QgsCoordinateTransform(layer.crs(), WGS84, QgsProject.instance())
    worst = 0
    for feature in layer.getFeatures():
        place = to_wgs.transform(feature.geometry().asPoint())
        worst = max(worst, metres_between(place.x(), place.y(), float(feature[lon]), float(feature[lat])))
    return worst


def extent_is_of_the_points(layer):
    points = [feature.geometry().asPoint() for feature in layer.getFeatures()]
    box = layer.extent()
    # A Shapefile and a GeoPackage write it by themselves; it has to hold every point and no more.
    wanted = (min(p.x() for p in points), min(p.y() for p in points),
              max(p.x() for p in points), max(p.y() for p in points))
    found = (box.xMinimum(), box.yMinimum(), box.xMaximum(), box.yMaximum())
    return all(abs(a - b) < 1e-6 for a, b in zip(wanted, found))


def look_at(name):
    """Whether the file is right, and a sentence on it."""
    layer = QgsVectorLayer(name + ("|layername=waypoints" if name.endswith("gpx") else ""), name, "ogr")
    if not layer.isValid():
        return False, "isn't opened"
    count = sum(1 for _ in layer.getFeatures())
    drawing = name.endswith("dxf")
    names = NAMES_OF_RUN if name.startswith("run") else NAMES
    good = count == (2 * len(names) if drawing else len(names))  # a drawing has a point and a text for each
    said = f"{count} features, {layer.crs().authid() or layer.crs().toProj() or 'no system'}"
    good &= layer.crs().isValid() or name.endswith(("dxf", "xlsx", "ods"))
    if name in CODES:
        good &= layer.crs().authid() == CODES[name]
    if layer.isSpatial() and not drawing:
        good &= extent_is_of_the_points(layer)
        farthest = farthest_of(layer)
        if farthest is not None:
            said += f", at most {farthest:.3f} m off"
            good &= farthest <= FARTHEST
    if not drawing:
        field = next(f.name() for f in layer.fields() if f.name().lower() == "name")
        good &= [feature[field] for feature in layer.getFeatures()] == names
    return good, said


def main():
    application = QgsApplication([], False)
    application.initQgis()
    print("QGIS", Qgis.QGIS_VERSION, flush=True)
    failed = False
    files = [name for name in sorted(glob.glob("*.*")) if name.split(".")[-1] in ENDINGS]
    for name in files:
        good, said = look_at(name)
        failed |= not good
        print("good  " if good else "FAILED", name, said, flush=True)
    # After exitQgis() the interpreter crashes.
    os._exit(1 if failed or not files else 0)


main()
