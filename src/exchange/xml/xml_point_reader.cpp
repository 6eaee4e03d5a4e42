#include "exchange/xml/xml_point_reader.h"

#include <utility>

#include "exchange/point_file_faults.h"
#include "exchange/xml/gpx_points.h"
#include "exchange/xml/kml_points.h"

namespace kelvo {

namespace {

// Points is what takes them out of the file, made with `detail`.
template <typename Points>
class StreamedPoints final : public PointFileReader {
public:
    StreamedPoints(VectorFormat format, const std::string& path, const std::string& root,
                   const std::string& detail)
        : points_(found_, detail), stream_(format, path, root, points_) {
        held_ = next();
        if (held_) return;
        if (!found_.otherShape.empty()) failOtherShape(found_.otherShape, path);
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
        while (found_.points.empty()) {
            if (!stream_.more()) return false;
        }
        first_ = std::move(found_.points.front());
        found_.points.pop_front();
        return true;
    }

    FoundInXml found_;
    Points points_;
    XmlStream stream_;
    PointOfFile first_;
    bool held_ = false;
    // Both formats are in WGS84 always.
    SystemOfFile system_{
        .stated = true, .geographic = true, .semiMajorAxis = 6378137, .name = "WGS 84"};
};

}  // namespace

std::unique_ptr<PointFileReader> makeKmlReader(const std::string& path) {
    return std::make_unique<StreamedPoints<KmlPoints>>(VectorFormat::Kml, path, "kml", path);
}

std::unique_ptr<PointFileReader> makeGpxReader(const std::string& path) {
    GpxKinds kinds;
    XmlStream look(VectorFormat::Gpx, path, "gpx", kinds);
    while (!kinds.wayPoints() && look.more()) continue;
    return std::make_unique<StreamedPoints<GpxPoints>>(VectorFormat::Gpx, path, "gpx",
                                                       kinds.element());
}

}  // namespace kelvo
