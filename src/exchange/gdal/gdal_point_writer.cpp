#include "exchange/gdal/gdal_point_writer.h"

#include <cerrno>
#include <charconv>
#include <fstream>
#include <string>

#include <cpl_conv.h>
#include <gdal_priv.h>
#include <ogr_spatialref.h>
#include <ogrsf_frmts.h>

#include "common/number_text.h"
#include "exchange/gdal/checked_files.h"
#include "exchange/gdal/driver_of.h"
#include "exchange/gdal/files_in_waiting.h"
#include "exchange/gdal/gdal_errors.h"
#include "exchange/text_limits.h"

namespace kelvo {

namespace {

constexpr std::size_t kLongestDbfName = 10;
constexpr std::uint64_t kPointsOfTransaction = 100000;
// A drawing's texts, 2 m high; on a map in degrees the same on the ground.
constexpr double kLabelMetres = 2;
constexpr double kLabelDegrees = 0.00002;

std::string_view layerNameOf(VectorFormat format, const std::string& stem) {
    switch (format) {
        case VectorFormat::Gpx:
            return "waypoints";
        case VectorFormat::Dxf:
            return "entities";
        case VectorFormat::Xlsx:
        case VectorFormat::Ods:
            return "Kelvo";
        default:
            return stem;
    }
}

CPLStringList fileOptionsOf(VectorFormat format) {
    CPLStringList options;
    // Without extensions a waypoint has no room for the other columns.
    if (format == VectorFormat::Gpx) options.SetNameValue("GPX_USE_EXTENSIONS", "YES");
    return options;
}

CPLStringList layerOptionsOf(VectorFormat format) {
    CPLStringList options;
    if (format == VectorFormat::GeoJson) {
        options.SetNameValue("RFC7946", "YES");
        options.SetNameValue("SIGNIFICANT_FIGURES", "16");
        // The driver takes a last digit after noughts for a slip of rounding, up to this many.
        options.SetNameValue("COORDINATE_PRECISION", "13");
    }
    // With its .cpg, so that no letter of a name is lost.
    if (format == VectorFormat::Shapefile) options.SetNameValue("ENCODING", "UTF-8");
    return options;
}

std::string fieldNameOf(VectorFormat format, std::size_t index, const std::string& name) {
    if (index == 0 && format == VectorFormat::Kml) return "Name";
    if (index == 0 && format == VectorFormat::Gpx) return "name";
    return format == VectorFormat::Shapefile ? name.substr(0, kLongestDbfName) : name;
}

std::string quotedForLabel(std::string_view name) {
    std::string text;
    for (const char letter : name) {
        if (letter == '\\' || letter == '"') text += '\\';
        text += letter;
    }
    return text;
}

struct CloseDataset {
    void operator()(GDALDataset* dataset) const { GDALClose(dataset); }
};
using Dataset = std::unique_ptr<GDALDataset, CloseDataset>;

class GdalPointWriter final : public PointFileWriter {
public:
    explicit GdalPointWriter(const PointLayer& layer)
        : asked_(layer),
          limits_(limitsOf(layer.format)),
          mostPoints_(mostPointsOf(layer.format, layer.columns)),
          waiting_((refuseTooMany(layer.points), layer.path)),
          checked_(waiting_.folder()) {
        const GdalErrors errors;
        try {
            open();
            if (layer_ == nullptr || errors.failed()) fail(errors);
        } catch (const ExchangeFault&) {
            abandon();
            throw;
        }
    }
    ~GdalPointWriter() override { abandon(); }
    GdalPointWriter(const GdalPointWriter&) = delete;
    GdalPointWriter& operator=(const GdalPointWriter&) = delete;

    void write(std::span<const std::string_view> cells,
               const std::optional<Place>& place) override {
        refuseTooMany(++given_);
        if (!place && !limits_.holdsUnplaced) return;
        const GdalErrors errors;
        fill(cells, place);
        bool good = layer_->CreateFeature(feature_.get()) == OGRERR_NONE;
        if (good && asked_.format == VectorFormat::Dxf) good = writeLabel(cells.front());
        if (good && ++written_ % kPointsOfTransaction == 0) good = nextTransaction();
        if (!good || errors.failed() || checked_.failure() != 0) fail(errors);
    }

    void finish() override {
        const GdalErrors errors;
        feature_.reset();
        const bool committed = !transacted_ || dataset_->CommitTransaction() == OGRERR_NONE;
        dataset_.reset();
        if (!committed || errors.failed() || checked_.failure() != 0) fail(errors);
        if (asked_.format == VectorFormat::Shapefile) writeSystemBeside();
        waiting_.takePlaces(asked_.format == VectorFormat::Shapefile);
    }

private:
    // What fails while an unfinished file is closed adds nothing to the fault that is on its way.
    void abandon() {
        const GdalErrors unheard;
        feature_.reset();
        dataset_.reset();
    }

    void open() {
        GDALDriver* const driver = GetGDALDriverManager()->GetDriverByName(driverOf(asked_.format));
        if (driver == nullptr)
            throw ExchangeFault("설치된 GDAL은 " + std::string(limits_.name) +
                                " 파일을 쓰지 못합니다");
        // SQLite reports a full disk itself, and wants files that it can lock.
        const bool direct = asked_.format == VectorFormat::GeoPackage;
        const std::string path =
            direct ? waiting_.folder() + '/' + waiting_.name() : checked_.pathOf(waiting_.name());
        dataset_.reset(driver->Create(path.c_str(), 0, 0, 0, GDT_Unknown,
                                      fileOptionsOf(asked_.format).List()));
        if (!dataset_) return;
        prepareSystem();
        const std::string stem = waiting_.stem();
        layer_ = dataset_->CreateLayer(std::string(layerNameOf(asked_.format, stem)).c_str(),
                                       limits_.system == StatedSystem::None ? nullptr : &system_,
                                       limits_.hasGeometry ? wkbPoint25D : wkbNone,
                                       layerOptionsOf(asked_.format).List());
        if (layer_ == nullptr) return;
        createFields();
        if (direct) transacted_ = dataset_->StartTransaction() == OGRERR_NONE;
        feature_ = std::make_unique<OGRFeature>(layer_->GetLayerDefn());
    }

    // Files take x and y as they are given, and so must whatever of GDAL looks at them.
    void prepareSystem() {
        system_.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
        if (limits_.system == StatedSystem::None) return;
        const std::string text =
            limits_.system == StatedSystem::Wgs84 ? "EPSG:4326" : asked_.system;
        if (system_.SetFromUserInput(text.c_str()) != OGRERR_NONE)
            throw ExchangeFault("좌표계를 쓸 수 없습니다: " + text);
    }

    void createFields() {
        for (std::size_t i = 0; i < asked_.columns.size(); ++i) {
            const PointColumn& column = asked_.columns[i];
            const std::string name = fieldNameOf(asked_.format, i, column.name);
            int at = layer_->GetLayerDefn()->GetFieldIndex(name.c_str());
            if (at < 0 && asked_.format != VectorFormat::Dxf) {
                OGRFieldDefn field(name.c_str(), column.holdsText() ? OFTString : OFTReal);
                if (asked_.format == VectorFormat::Shapefile) {
                    field.SetWidth(column.holdsText() ? kDbfTextWidth : kDbfNumberWidth);
                    if (!column.holdsText()) field.SetPrecision(column.decimals);
                }
                layer_->CreateField(&field);
                at = layer_->GetLayerDefn()->GetFieldIndex(name.c_str());
            }
            fields_.push_back(at);
        }
        elevation_ =
            asked_.format == VectorFormat::Gpx ? layer_->GetLayerDefn()->GetFieldIndex("ele") : -1;
    }

    void fill(std::span<const std::string_view> cells, const std::optional<Place>& place) {
        feature_->SetFID(OGRNullFID);
        feature_->SetStyleString(nullptr);
        for (std::size_t i = 0; i < fields_.size() && i < cells.size(); ++i)
            fillField(fields_[i], asked_.columns[i], cells[i]);
        if (!limits_.hasGeometry) return;
        if (!place) {
            feature_->SetGeometryDirectly(nullptr);
            return;
        }
        const OGRPoint point(place->x, place->y, place->height);
        feature_->SetGeometry(&point);
        if (elevation_ >= 0) feature_->SetField(elevation_, place->height);
    }

    void fillField(int field, const PointColumn& column, std::string_view cell) {
        if (column.holdsText()) refuseText(cell);
        if (field < 0) return;
        if (cell.empty()) {
            feature_->UnsetField(field);
        } else if (column.holdsText()) {
            cell_ = cell;
            feature_->SetField(field, cell_.c_str());
        } else {
            double value = 0;
            const char* const end = cell.data() + cell.size();
            const auto read = std::from_chars(cell.data(), end, value);
            if (read.ec != std::errc{} || read.ptr != end)
                throw ExchangeFault("수가 아닙니다: " + std::string(cell) + " (" + asked_.path +
                                    ")");
            feature_->SetField(field, value);
        }
    }

    // What would be cut, vanish or mean something else is refused.
    void refuseText(std::string_view text) const {
        const std::string reason = whyNotHeld(text, asked_.format);
        if (!reason.empty())
            throw ExchangeFault(std::string(limits_.name) + ": " + reason + ", " +
                                std::to_string(given_) + "번째 점 (" + asked_.path + ")");
    }

    void refuseTooMany(std::uint64_t points) const {
        if (mostPoints_ == 0 || points <= mostPoints_) return;
        throw ExchangeFault(std::string(limits_.name) + " 파일에는 점을 " +
                            std::to_string(mostPoints_) + "개까지만 담을 수 있습니다 (" +
                            asked_.path + ")");
    }

    bool writeLabel(std::string_view name) {
        if (name.empty()) return true;
        const double height = asked_.placesAreAngles ? kLabelDegrees : kLabelMetres;
        const std::string style = "LABEL(f:\"Arial\",t:\"" + quotedForLabel(name) +
                                  "\",s:" + generalText(height) + "g,p:1)";
        feature_->SetFID(OGRNullFID);
        feature_->SetStyleString(style.c_str());
        return layer_->CreateFeature(feature_.get()) == OGRERR_NONE;
    }

    bool nextTransaction() {
        return !transacted_ || (dataset_->CommitTransaction() == OGRERR_NONE &&
                                dataset_->StartTransaction() == OGRERR_NONE);
    }

    // The driver's own text has no room for the seven parameters, which moves points by 400 m; a
    // code finds its parameters by itself.
    void writeSystemBeside() const {
        if (asked_.system.starts_with("EPSG:")) return;
        char* text = nullptr;
        const CPLStringList options(CSLSetNameValue(nullptr, "FORMAT", "WKT1_GDAL"));
        const OGRErr failed = system_.exportToWkt(&text, options.List());
        const std::unique_ptr<char, decltype(&VSIFree)> held(text, &VSIFree);
        const std::string path = waiting_.folder() + '/' + waiting_.stem() + ".prj";
        std::ofstream file(path, std::ios::binary | std::ios::trunc);
        if (failed == OGRERR_NONE) file << text;
        file.close();
        if (failed != OGRERR_NONE || !file) throw ExchangeFault(sentenceOf(errno, asked_.path));
    }

    [[noreturn]] void fail(const GdalErrors& errors) const {
        if (checked_.failure() != 0)
            throw ExchangeFault(sentenceOf(checked_.failure(), asked_.path));
        throw ExchangeFault(std::string(limits_.name) + " 파일을 쓰지 못했습니다: " +
                            errors.first() + " (" + asked_.path + ")");
    }

    PointLayer asked_;
    const FormatLimits& limits_;
    std::uint64_t mostPoints_;
    FilesInWaiting waiting_;
    CheckedFiles checked_;
    OGRSpatialReference system_;
    Dataset dataset_;
    OGRLayer* layer_ = nullptr;
    std::unique_ptr<OGRFeature> feature_;
    std::vector<int> fields_;
    int elevation_ = -1;
    bool transacted_ = false;
    std::uint64_t given_ = 0;
    std::uint64_t written_ = 0;
    std::string cell_;
};

}  // namespace

std::unique_ptr<PointFileWriter> makePointWriter(const PointLayer& layer) {
    return std::make_unique<GdalPointWriter>(layer);
}

}  // namespace kelvo
