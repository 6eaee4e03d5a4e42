// Converted points into the files of other programs.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "convert/output_systems.h"
#include "convert/rows.h"
#include "exchange/coordinate_system.h"
#include "exchange/point_files.h"

namespace kelvo {

// What is written where.
struct VectorOutput {
    VectorFormat format{};
    std::string path;
    std::vector<OutputSystem> systems;     // their columns, as attributes
    std::optional<OutputSystem> geometry;  // else the first of `systems`
    AngleForm angles = AngleForm::Degrees;
    std::uint64_t points = 0;  // how many will come, 0 where that isn't known
};

[[nodiscard]] PlaceSystem placeSystemOf(OutputSystem system);

// One feature a point. GeoJSON, KML and GPX are in WGS84 whatever the systems are.
class VectorSink final : public RowSink {
public:
    // Refusal for a geometry that the format doesn't have, and for more points than it holds.
    VectorSink(const VectorOutput& output, Definition definition);

    // Refusal where the points of a grid lie on several origins: one file has one system.
    void take(const RowBlock& block) override;
    void finish() override;
    [[nodiscard]] std::vector<std::string> notes() const override;

private:
    void require(const VectorOutput& output) const;
    [[nodiscard]] bool hasOrigins() const;
    [[nodiscard]] double originOf(const ConvertedPoint& point) const;
    void open(double Lam0);
    void takeRow(const RowBlock& block, std::size_t i);
    void noteOrigin(const ConvertedPoint& point);
    void writeUnplaced(std::string_view name, std::string_view status);

    VectorOutput output_;
    Definition definition_;
    std::vector<OutputColumn> columns_;
    PlaceSystem system_;
    std::unique_ptr<PointFileWriter> writer_;
    std::optional<double> Lam0_;
    struct Unplaced {
        std::string name;
        std::string status;
    };
    std::vector<Unplaced> waiting_;  // bad points in front of the first good one
    std::uint64_t leftOut_ = 0;
    double metresBeside_ = 0;
    std::string cells_;
    std::vector<std::string_view> row_;
    std::vector<std::size_t> ends_;
};

}  // namespace kelvo
