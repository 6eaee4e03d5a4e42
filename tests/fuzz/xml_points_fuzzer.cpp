// KML and GPX, as other programs may have written them: points or one fault, the same wherever the
// pieces end in which the file is read.
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <memory>
#include <optional>
#include <vector>

#include "exchange/point_files.h"
#include "exchange/xml/xml_point_reader.h"
#include "fuzz/fuzz_target.h"

namespace kelvo::fuzz {
namespace {

constexpr std::string_view kLines[] = {
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>",
    "<?xml version=\"1.0\" encoding=\"EUC-KR\"?>",
    "<?xml version=\"1.0\" encoding=\"UTF-16\"?>",
    "<?xml version=\"1.0\" encoding=\"ISO-2022-KR\"?>",
    "<!DOCTYPE kml [<!ENTITY a \"&b;&b;&b;\"><!ENTITY b \"127,37\">]>",
    "<kml xmlns=\"http://www.opengis.net/kml/2.2\">",
    "<k:kml xmlns:k=\"http://www.opengis.net/kml/2.2\">",
    "<Document>",
    "</Document>",
    "<Folder>",
    "</Folder>",
    "<Placemark>",
    "</Placemark>",
    "<name> \xEA\xB0\x80 </name>",
    "<name>&a;</name>",
    "<name>12345</name>",
    "<name><![CDATA[<b>]]></name>",
    "<ele>12.5</ele>",
    "<Point>",
    "</Point>",
    "<coordinates>",
    "</coordinates>",
    " 127 , 37 , 1.5 ",
    "127,37 128,38",
    "<MultiGeometry>",
    "</MultiGeometry>",
    "<LineString/>",
    "<Polygon/>",
    "</kml>",
    "<gpx version=\"1.1\" xmlns=\"http://www.topografix.com/GPX/1/1\">",
    "<wpt lat=\" 37 \" lon=\" 127 \">",
    "</wpt>",
    "<ele>",
    "</ele>",
    "<rte><rtept lat=\"37\" lon=\"127\"/></rte>",
    "<trk><trkseg>",
    "<trkpt lat=\"37\" lon=\"127\"/>",
    "</trkseg></trk>",
    "<extensions>",
    "</extensions>",
    "</gpx>",
    "<!-- -->",
};

constexpr std::size_t kPiece = 65536;  // as the file is read

// A file that is on no disk.
class FileInMemory {
public:
    explicit FileInMemory(std::string_view bytes) : file_(memfd_create("points", MFD_CLOEXEC)) {
        require(file_ >= 0, "there is room for a file");
        require(write(file_, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()),
                "there is room for all of it");
    }
    ~FileInMemory() { close(file_); }
    FileInMemory(const FileInMemory&) = delete;
    FileInMemory& operator=(const FileInMemory&) = delete;

    [[nodiscard]] std::string path() const { return "/proc/self/fd/" + std::to_string(file_); }

private:
    int file_;
};

using Open = std::unique_ptr<PointFileReader> (*)(const std::string&);

// The points; none where the file is refused.
std::vector<PointOfFile> pointsOf(Open open, std::string_view text) {
    const FileInMemory file(text);
    std::vector<PointOfFile> points;
    try {
        const auto reader = open(file.path());
        require(reader->system().geographic, "both formats are in angles");
        for (PointOfFile point; reader->read(point);) points.push_back(point);
    } catch (const ExchangeFault& fault) {
        const std::string_view sentence = fault.what();
        require(sentence.ends_with(" (" + file.path() + ")"), "a fault names the file: ", sentence);
        require(sentence.find('\n') == std::string_view::npos, "a fault is one line: ", sentence);
        return {};
    }
    require(!points.empty(), "a file without points is refused");
    return points;
}

// The same file with so long a remark in front of an element that a piece ends at `end`, in that
// element or in its text.
std::optional<std::string> withARemark(std::string_view text, std::size_t end) {
    std::size_t start = text.substr(0, end).rfind('<');
    while (start != std::string_view::npos && start + 1 < text.size() &&
           std::isalpha(static_cast<unsigned char>(text[start + 1])) == 0)
        start = text.substr(0, start).rfind('<');
    if (start == std::string_view::npos) return std::nullopt;
    std::string longer(text);
    longer.insert(start, "<!--" + std::string(kPiece - end - 7, ' ') + "-->");
    return longer;
}

bool same(const PointOfFile& one, const PointOfFile& other) {
    return one.name == other.name && one.place.has_value() == other.place.has_value() &&
           (!one.place || (one.place->x == other.place->x && one.place->y == other.place->y &&
                           one.place->height == other.place->height));
}

void check(Open open, std::string_view text) {
    const auto points = pointsOf(open, text);
    for (const PointOfFile& point : points)
        require(!point.place || (std::isfinite(point.place->x) && std::isfinite(point.place->y) &&
                                 std::isfinite(point.place->height)),
                "places are finite");
    if (text.find("<!") != std::string_view::npos) return;
    // Most inputs are refused; one piece's end is enough for those.
    const std::size_t ends = kReplaysStoredInputs ? text.size() : points.empty() ? 1 : 16;
    const std::size_t step = kReplaysStoredInputs ? 1 : 31;
    for (std::size_t i = 0; i < ends; ++i) {
        const auto longer = withARemark(text, (text.size() * 7919 + i * step) % (text.size() + 1));
        if (!longer) continue;
        const auto again = pointsOf(open, *longer);
        require(std::equal(points.begin(), points.end(), again.begin(), again.end(), same),
                "pieces change nothing");
    }
}

}  // namespace

std::span<const std::string_view> knownLines() {
    return kLines;
}

}  // namespace kelvo::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    using namespace kelvo::fuzz;
    const std::string_view text = textOf(bytes, size);
    check(kelvo::makeKmlReader, text);
    check(kelvo::makeGpxReader, text);
    return 0;
}
