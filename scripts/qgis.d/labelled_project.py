"""Makes points.qgs: the two exported layers of the current folder, with names, over each other."""

import os

from qgis.core import (QgsApplication, QgsMarkerSymbol, QgsPalLayerSettings,
                       QgsProject, QgsRectangle, QgsReferencedRectangle, QgsTextBufferSettings,
                       QgsTextFormat, QgsVectorLayer, QgsVectorLayerSimpleLabeling)
from qgis.PyQt.QtGui import QColor, QFont


def layer_of(path, symbol):
    layer = QgsVectorLayer(path, "", "ogr")
    layer.setName(f"{path} ({layer.crs().authid()})")
    layer.renderer().setSymbol(QgsMarkerSymbol.createSimple(symbol))
    return layer


def show_names(layer):
    words = QgsTextFormat()
    words.setFont(QFont("나눔고딕"))
    words.setSize(11)
    around = QgsTextBufferSettings()
    around.setEnabled(True)
    words.setBuffer(around)
    settings = QgsPalLayerSettings()
    settings.fieldName = "name"
    settings.setFormat(words)
    settings.dist = 2
    layer.setLabeling(QgsVectorLayerSimpleLabeling(settings))
    layer.setLabelsEnabled(True)


application = QgsApplication([], False)
application.initQgis()
project = QgsProject.instance()
rings = layer_of("현장1-TM.gpkg", {"name": "circle", "color": "255,255,255,0", "size": "5",
                                  "outline_color": "#1f5fa8", "outline_width": "0.5"})
points = layer_of("현장1.gpkg", {"name": "circle", "color": "#c02020", "size": "2"})
show_names(points)
project.addMapLayers([points, rings])
project.setCrs(rings.crs())
box = QgsRectangle(rings.extent())
box.scale(1.25)
project.viewSettings().setDefaultViewExtent(QgsReferencedRectangle(box, rings.crs()))
project.setTitle("현장1")
project.write("points.qgs")
# After exitQgis() the interpreter crashes.
os._exit(0)
