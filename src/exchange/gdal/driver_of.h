// The driver of GDAL that reads and writes a format.
#pragma once

#include "exchange/vector_format.h"

namespace kelvo {

// A name that GDAL has for it.
[[nodiscard]] constexpr const char* driverOf(VectorFormat format) {
    switch (format) {
        case VectorFormat::GeoPackage:
            return "GPKG";
        case VectorFormat::GeoJson:
            return "GeoJSON";
        case VectorFormat::Shapefile:
            return "ESRI Shapefile";
        case VectorFormat::Kml:
            // Not LIBKML, whose time grows far faster than the points.
            return "KML";
        case VectorFormat::Gpx:
            return "GPX";
        case VectorFormat::Dxf:
            return "DXF";
        case VectorFormat::Xlsx:
            return "XLSX";
        case VectorFormat::Ods:
            return "ODS";
    }
    return nullptr;
}

}  // namespace kelvo
