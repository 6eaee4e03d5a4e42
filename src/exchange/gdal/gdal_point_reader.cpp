#include "exchange/gdal/gdal_point_reader.h"

#include <array>
#include <deque>
#include <map>
#include <utility>

#include <ogr_spatialref.h>
#include <ogrsf_frmts.h>

#include "common/code_page.h"
#include "common/utf8.h"
#include "exchange/gdal/gdal_errors.h"
#include "exchange/gdal/opened_file.h"
#include "exchange/point_file_faults.h"

namespace kelvo {

namespace {

using Feature = std::unique_ptr<OGRFeature>;

// As people call the column of names; otherwise the first column of text.
constexpr std::array<const char*, 5> kNamesOfName{"name", "명칭", "점명", "이름", "label"};

int nameFieldOf(const OGRFeatureDefn& fields) {
    for (const char* const name : kNamesOfName) {
        if (const int at = fields.GetFieldIndex(name); at >= 0) return at;
    }
    for (int i = 0; i < fields.GetFieldCount(); ++i) {
        if (fields.GetFieldDefn(i)->GetType() == OFTString) return i;
    }
    return -1;
}

// The table of a Shapefile without a word on its letters has UTF-8 or the Korean code page.
std::string nameOf(const OGRFeature& feature, int field) {
    if (field < 0 || !feature.IsFieldSetAndNotNull(field)) return {};
    std::string name = feature.GetFieldAsString(field);
    return isWellFormedUtf8(name) ? name : decodeCodePage(name);
}

SystemOfFile systemOf(const OGRSpatialReference* reference) {
    SystemOfFile system;
    if (reference == nullptr || reference->IsEmpty() || reference->IsLocal()) return system;
    system.stated = true;
    system.geographic = reference->IsGeographic();
    system.semiMajorAxis = reference->GetSemiMajor();
    const char* const name = reference->GetName();
    if (name != nullptr) system.name = name;
    return system;
}

bool mayHoldPoints(OGRwkbGeometryType type) {
    switch (wkbFlatten(type)) {
        case wkbUnknown:
        case wkbPoint:
        case wkbMultiPoint:
        case wkbGeometryCollection:
            return true;
        default:
            return false;
    }
}

// A point, or a collection of exactly one.
const OGRPoint* pointOf(const OGRGeometry& geometry) {
    const OGRwkbGeometryType type = wkbFlatten(geometry.getGeometryType());
    if (type == wkbPoint) return geometry.toPoint();
    if (type != wkbMultiPoint) return nullptr;
    const OGRMultiPoint* const points = geometry.toMultiPoint();
    return points->getNumGeometries() == 1 ? points->getGeometryRef(0) : nullptr;
}

class LayerPoints final : public PointFileReader {
public:
    LayerPoints(VectorFormat format, const std::string& path)
        : path_(path), file_(openFileOf(format, path)) {
        const GdalErrors errors;
        std::string other;
        for (int i = 0; i < file_->GetLayerCount(); ++i) {
            OGRLayer* const layer = file_->GetLayer(i);
            const OGRwkbGeometryType type = layer->GetGeomType();
            if (mayHoldPoints(type)) {
                layers_.push_back(layer);
            } else if (type != wkbNone) {
                other = OGRGeometryTypeToName(type);
            }
        }
        if (errors.failed()) failDamaged(errors.first(), path_);
        if (layers_.empty() && !other.empty()) failOtherShape(other, path_);
        findFirst();
    }

    const SystemOfFile& system() const override { return system_; }

    bool read(PointOfFile& point) override {
        if (!held_) return false;
        point = std::exchange(first_, {});
        held_ = next(first_);
        return true;
    }

private:
    void findFirst() {
        held_ = next(first_);
        if (!held_) failWithoutPoints(path_);
        system_ = systemOf(layers_[at_]->GetSpatialRef());
    }

    bool next(PointOfFile& point) {
        const GdalErrors errors;
        while (at_ < layers_.size()) {
            OGRLayer* const layer = layers_[at_];
            const Feature feature(layer->GetNextFeature());
            if (errors.failed()) failDamaged(errors.first(), path_);
            if (feature) {
                point = pointFrom(*feature);
                return true;
            }
            ++at_;
        }
        return false;
    }

    [[nodiscard]] PointOfFile pointFrom(const OGRFeature& feature) const {
        PointOfFile point{.name = nameOf(feature, nameFieldOf(*feature.GetDefnRef())), .place = {}};
        const OGRGeometry* const geometry = feature.GetGeometryRef();
        if (geometry == nullptr || geometry->IsEmpty()) return point;
        const OGRPoint* const place = pointOf(*geometry);
        if (place == nullptr) failOtherShape(geometry->getGeometryName(), path_);
        point.place = {.x = place->getX(), .y = place->getY(), .height = place->getZ()};
        return point;
    }

    std::string path_;
    OpenedFile file_;
    std::vector<OGRLayer*> layers_;
    std::size_t at_ = 0;
    bool held_ = false;
    PointOfFile first_;
    SystemOfFile system_;
};

// A drawing holds much beside points. A point has the name of the text that begins at it, the
// second point at a place that of the second text, and so on; where there are texts only, each is a
// point.
class DrawingPoints final : public PointFileReader {
public:
    explicit DrawingPoints(const std::string& path) {
        const OpenedFile file = openFileOf(VectorFormat::Dxf, path);
        const GdalErrors errors;
        std::vector<PointOfFile> texts;
        if (OGRLayer* const layer = file->GetLayer(0); layer != nullptr) {
            while (const Feature feature = Feature(layer->GetNextFeature())) sort(*feature, texts);
        }
        if (errors.failed()) failDamaged(errors.first(), path);
        if (points_.empty()) {
            points_ = std::move(texts);
        } else {
            nameBy(texts);
        }
        if (points_.empty()) failWithoutPoints(path);
    }

    const SystemOfFile& system() const override { return system_; }

    bool read(PointOfFile& point) override {
        if (at_ == points_.size()) return false;
        point = std::move(points_[at_++]);
        return true;
    }

private:
    void sort(const OGRFeature& feature, std::vector<PointOfFile>& texts) {
        const OGRGeometry* const geometry = feature.GetGeometryRef();
        const OGRPoint* const place = geometry != nullptr ? pointOf(*geometry) : nullptr;
        if (place == nullptr) return;
        PointOfFile point{
            .name = feature.GetFieldAsString("Text"),
            .place = Place{.x = place->getX(), .y = place->getY(), .height = place->getZ()}};
        point.name.resize(std::min(point.name.find_first_of("\r\n"), point.name.size()));
        (point.name.empty() ? points_ : texts).push_back(std::move(point));
    }

    void nameBy(const std::vector<PointOfFile>& texts) {
        std::map<std::pair<double, double>, std::deque<const std::string*>> names;
        for (const PointOfFile& text : texts)
            names[{text.place->x, text.place->y}].push_back(&text.name);
        for (PointOfFile& point : points_) {
            const auto found = names.find({point.place->x, point.place->y});
            if (found == names.end()) continue;
            point.name = *found->second.front();
            if (found->second.size() > 1) found->second.pop_front();
        }
    }

    std::vector<PointOfFile> points_;
    std::size_t at_ = 0;
    SystemOfFile system_;
};

}  // namespace

std::unique_ptr<PointFileReader> makePointReader(VectorFormat format, const std::string& path) {
    if (format == VectorFormat::Dxf) return std::make_unique<DrawingPoints>(path);
    return std::make_unique<LayerPoints>(format, path);
}

}  // namespace kelvo
