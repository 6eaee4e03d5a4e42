// The way into the module.
#include <gdal.h>

#include "exchange/gdal/gdal_point_reader.h"
#include "exchange/gdal/gdal_point_writer.h"
#include "exchange/gdal/gdal_sheet_reader.h"
#include "exchange/xml/xml_point_reader.h"

namespace kelvo {

namespace {

class GdalPointFiles final : public PointFiles {
public:
    GdalPointFiles() { GDALAllRegister(); }

    std::unique_ptr<PointFileWriter> create(const PointLayer& layer) const override {
        return makePointWriter(layer);
    }
    std::unique_ptr<PointFileReader> open(VectorFormat format,
                                          const std::string& path) const override {
        if (format == VectorFormat::Kml) return makeKmlReader(path);
        if (format == VectorFormat::Gpx) return makeGpxReader(path);
        return makePointReader(format, path);
    }
    std::unique_ptr<SheetReader> openSheet(VectorFormat format,
                                           const std::string& path) const override {
        return makeSheetReader(format, path);
    }
};

}  // namespace

}  // namespace kelvo

// The name holds the version, so that a module of another one isn't taken.
extern "C" [[gnu::visibility("default")]] kelvo::PointFiles* KELVO_EXCHANGE_MAKE() {
    return new kelvo::GdalPointFiles;
}
