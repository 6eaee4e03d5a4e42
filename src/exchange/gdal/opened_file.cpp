#include "exchange/gdal/opened_file.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <string_view>

#include <cpl_string.h>

#include "exchange/gdal/driver_of.h"
#include "exchange/gdal/gdal_setting.h"
#include "exchange/point_file_faults.h"

namespace kelvo {

namespace fs = std::filesystem;

namespace {

// A drawing of 2007 or later is in UTF-8 whatever its header says of a code page.
bool isUnicodeDrawing(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::string head(16384, '\0');
    file.read(head.data(), static_cast<std::streamsize>(head.size()));
    head.resize(static_cast<std::size_t>(file.gcount()));
    const std::size_t at = head.find("$ACADVER");
    const std::size_t version = at == std::string::npos ? at : head.find("AC1", at);
    return version != std::string::npos && version - at < 32 &&
           std::string_view(head).substr(version, 6) >= "AC1021";
}

// Without a .cpg nobody knows the letters of the table: they are read as bytes.
CPLStringList openOptionsOf(VectorFormat format, const std::string& path) {
    CPLStringList options;
    std::error_code ignored;
    if (format == VectorFormat::Shapefile) {
        const bool known = fs::exists(fs::path(path).replace_extension(".cpg"), ignored) ||
                           fs::exists(fs::path(path).replace_extension(".CPG"), ignored);
        if (!known) options.SetNameValue("ENCODING", "");
    }
    return options;
}

}  // namespace

OpenedFile openFileOf(VectorFormat format, const std::string& path) {
    if (std::ifstream probe(path, std::ios::binary); !probe)
        failBySystem("파일을 열 수 없습니다", path);
    const GdalErrors errors;
    const GdalSetting letters(
        "DXF_ENCODING", format == VectorFormat::Dxf && isUnicodeDrawing(path) ? "UTF-8" : nullptr);
    const std::array<const char*, 2> drivers{driverOf(format), nullptr};
    OpenedFile file(GDALDataset::Open(path.c_str(), GDAL_OF_VECTOR | GDAL_OF_READONLY,
                                      drivers.data(), openOptionsOf(format, path).List(), nullptr));
    if (!file) failOtherKind(format, errors.first(), path);
    if (errors.failed()) failDamaged(errors.first(), path);
    return file;
}

}  // namespace kelvo
