// Definitions and points for the tests of files for other programs.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "conversion/converter.h"
#include "exchange/coordinate_system.h"
#include "exchange/load_point_files.h"
#include "support/usual_definition.h"

namespace kelvo::testing {

// A build without GDAL has no module: its tests say so and pass.
template <class Base>
class NeedsModule : public Base {
protected:
    void SetUp() override {
        if (!std::filesystem::exists(KELVO_BINARY_DIR "/kelvo-exchange.so"))
            GTEST_SKIP() << "built without GDAL (KELVO_EXCHANGE=OFF)";
    }
};

inline ConvertedPoint convertedFromWgs(const Definition& definition, const GivenPoint& given) {
    std::vector<ConvertedPoint> points(1);
    Outcomes outcomes;
    Converter converter(definition);
    converter.convert(System::Wgs, AngleForm::Degrees, std::vector<GivenPoint>{given}, points,
                      outcomes);
    converter.addWgsUtm(points, outcomes);
    EXPECT_TRUE(outcomes.empty());
    return points.front();
}

inline Place placeIn(const ConvertedPoint& point, PlaceSystem system) {
    switch (system) {
        case PlaceSystem::User:
            return {.x = point.UserLam, .y = point.UserPhi, .height = point.UserH};
        case PlaceSystem::Tm:
            return {.x = point.TmY, .y = point.TmX, .height = point.TmH};
        case PlaceSystem::Utm:
            return {.x = point.UtmY, .y = point.UtmX, .height = point.UtmH};
        case PlaceSystem::WgsUtm:
            return {.x = point.WgsUtmY, .y = point.WgsUtmX, .height = point.WgsUtmH};
        case PlaceSystem::Wgs:
            break;
    }
    return {.x = point.WgsLam, .y = point.WgsPhi, .height = point.WgsH};
}

struct SamplePoint {
    std::string name;
    std::string lat;
    std::string lon;
    std::string height;
    std::string status;
    std::optional<Place> place;
};

// Three in Korea with names that files have been seen to spoil.
inline std::vector<SamplePoint> samplePoints() {
    return {
        {"점 1", "37.3533256712", "127.0029345412", "30.1756", "",
         Place{127.0029345412, 37.3533256712, 30.1756}},
        {"똠뷁", "38.1000000001", "127.9999999999", "-0.0500", "",
         Place{127.9999999999, 38.1000000001, -0.05}},
        {"007", "33.5000000000", "126.5000000000", "1947.2690", "", Place{126.5, 33.5, 1947.269}}};
}

inline std::vector<PointColumn> sampleColumns() {
    return {{"name"}, {"wgs_lat", 10}, {"wgs_lon", 10}, {"wgs_h", 4}, {"status"}};
}

inline PointLayer sampleLayer(VectorFormat format, const std::string& path) {
    return {.format = format,
            .path = path,
            .columns = sampleColumns(),
            .system = "EPSG:4326",
            .placesAreAngles = true,
            .points = 0};
}

inline void writePoints(PointFileWriter& writer, const std::vector<SamplePoint>& points) {
    for (const SamplePoint& point : points) {
        const std::vector<std::string_view> cells{point.name, point.lat, point.lon, point.height,
                                                  point.status};
        writer.write(cells, point.place);
    }
}

inline void writeFile(const PointLayer& layer, const std::vector<SamplePoint>& points) {
    const auto writer = loadPointFiles()->create(layer);
    writePoints(*writer, points);
    writer->finish();
}

}  // namespace kelvo::testing
