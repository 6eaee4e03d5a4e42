#include "convert/vector_source.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "convert/refusal.h"
#include "convert/vector_refusal.h"
#include "exchange/load_point_files.h"

namespace kelvo {

namespace {

// The axes of ellipsoids that are in use differ by more than this, in metres; those of WGS84 and
// GRS80 are the same.
constexpr double kAxisDifference = 1;

double axisOf(System system, const Definition& definition) {
    switch (system) {
        case System::Wgs:
            return kWgs84.a;
        case System::Utm:
            return definition.utm.ellipsoid.a;
        case System::User:
        case System::Tm:
            break;
    }
    return definition.local.user.a;
}

std::string complaintOf(const SystemOfFile& found, VectorFormat format, System system,
                        const Definition& definition) {
    const bool angles = system == System::Wgs || system == System::User;
    if (limitsOf(format).system == StatedSystem::None) return {};
    if (!found.stated) return "파일에 좌표계가 없습니다. 좌표계를 정해 넣거나 CSV로 주십시오";
    if (found.geographic != angles)
        return "파일의 좌표계(" + found.name + ")는 " +
               (found.geographic ? "경위도인데 --from은 직교좌표입니다"
                                 : "직교좌표인데 --from은 경위도입니다");
    if (std::abs(found.semiMajorAxis - axisOf(system, definition)) > kAxisDifference)
        return "파일의 좌표계(" + found.name + ")는 --from과 타원체가 다릅니다";
    return {};
}

class VectorSource final : public RowSource {
public:
    explicit VectorSource(std::unique_ptr<PointFileReader> reader) : reader_(std::move(reader)) {}

    bool gather(RowBlock& block) override {
        return orRefusal([&] {
            PointOfFile point;
            while (block.size() < kRowsOfBlock && reader_->read(point)) {
                ++number_;
                const std::string& name = block.kept.emplace_back(std::move(point.name));
                if (point.place) {
                    const Place& at = *point.place;
                    block.add(name, {.first = at.y, .second = at.x, .height = at.height}, number_);
                } else {
                    block.addUnread(name, number_,
                                    "좌표가 비어 있습니다 (line " + std::to_string(number_) + ")");
                }
            }
            return block.size() > 0;
        });
    }

private:
    std::unique_ptr<PointFileReader> reader_;
    long number_ = 0;
};

class SheetText final : public ByteReader {
public:
    explicit SheetText(std::unique_ptr<SheetReader> sheet) : sheet_(std::move(sheet)) {}

    std::size_t read(std::span<char> buffer) override {
        while (next_ == text_.size()) {
            text_.clear();
            next_ = 0;
            if (!orRefusal([this] { return sheet_->read(cells_); })) return 0;
            appendRow();
        }
        const std::size_t count = text_.copy(buffer.data(), buffer.size(), next_);
        next_ += count;
        return count;
    }

private:
    // An empty row is an empty line, which is passed over and counted.
    void appendRow() {
        const bool empty = std::all_of(cells_.begin(), cells_.end(),
                                       [](const std::string& cell) { return cell.empty(); });
        for (std::size_t i = 0; !empty && i < cells_.size(); ++i) {
            if (i > 0) text_ += ',';
            text_ += '"';
            for (const char letter : cells_[i]) {
                if (letter == '"') text_ += '"';
                text_ += letter;
            }
            text_ += '"';
        }
        text_ += '\n';
    }

    std::unique_ptr<SheetReader> sheet_;
    std::vector<std::string> cells_;
    std::string text_;
    std::size_t next_ = 0;
};

}  // namespace

std::unique_ptr<RowSource> openVectorSource(VectorFormat format, const std::string& path,
                                            System system, const Definition& definition) {
    auto reader = orRefusal([&] { return loadPointFiles()->open(format, path); });
    const std::string complaint = complaintOf(reader->system(), format, system, definition);
    if (!complaint.empty()) throw Refusal(complaint + " (" + path + ")");
    return std::make_unique<VectorSource>(std::move(reader));
}

std::unique_ptr<ByteReader> openSheetAsText(VectorFormat format, const std::string& path) {
    return std::make_unique<SheetText>(
        orRefusal([&] { return loadPointFiles()->openSheet(format, path); }));
}

}  // namespace kelvo
