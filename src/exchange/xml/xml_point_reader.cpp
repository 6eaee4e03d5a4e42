#include "exchange/xml/xml_point_reader.h"

#include <utility>

#include "exchange/point_file_faults.h"
#include "exchange/xml/gpx_points.h"
#include "exchange/xml/kml_points.h"

namespace kelvo {

namespace {

class StreamedPoints final : public PointFileReader {
public:
    StreamedPoints(VectorFormat format, const std::string& path, const std::string& root,
                   std::unique_ptr<PointsInXml> points)
        : points_(std::move(points)), stream_(format, path, root, *points_) {
        held_ = next();
        if (held_) return;
        if (const std::string shape = points_->otherShape(); !shape.empty())
            failOtherShape(shape, path);
        failWithoutPoints(path);
    }

    const SystemOfFile& system() const override { return system_; }

    bool read(PointOfFile& point) override {
        if (!held_) return false;
        point = std::exchange(first_, {});
        held_ = next();
        return true;
    }

private:
    bool next() {
        while (!points_->take(first_)) {
            if (!stream_.more()) return false;
        }
        return true;
    }

    std::unique_ptr<PointsInXml> points_;
    XmlStream stream_;
    PointOfFile first_;
    bool held_ = false;
    // Both formats are in WGS84 always.
    SystemOfFile system_{
        .stated = true, .geographic = true, .semiMajorAxis = 6378137, .name = "WGS 84"};
};

}  // namespace

std::unique_ptr<PointFileReader> makeKmlReader(const std::string& path) {
    return std::make_unique<StreamedPoints>(VectorFormat::Kml, path, "kml",
                                            std::make_unique<KmlPoints>(path));
}

std::unique_ptr<PointFileReader> makeGpxReader(const std::string& path) {
    GpxKinds kinds;
    XmlStream look(VectorFormat::Gpx, path, "gpx", kinds);
    while (!kinds.wayPoints() && look.more()) continue;
    return std::make_unique<StreamedPoints>(VectorFormat::Gpx, path, "gpx",
                                            std::make_unique<GpxPoints>(kinds.element()));
}

}  // namespace kelvo
