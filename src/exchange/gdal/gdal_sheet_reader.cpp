#include "exchange/gdal/gdal_sheet_reader.h"

#include <ogrsf_frmts.h>

#include "exchange/gdal/gdal_errors.h"
#include "exchange/gdal/gdal_setting.h"
#include "exchange/gdal/opened_file.h"
#include "exchange/point_file_faults.h"

namespace kelvo {

namespace {

class GdalSheetReader final : public SheetReader {
public:
    // Sheets are read when they are first asked for anything. All cells are wanted as they are
    // stored, the first row too.
    GdalSheetReader(VectorFormat format, const std::string& path)
        : path_(path), file_(openFileOf(format, path)) {
        const GdalErrors errors;
        const GdalSetting xlsxRows("OGR_XLSX_HEADERS", "DISABLE");
        const GdalSetting xlsxCells("OGR_XLSX_FIELD_TYPES", "STRING");
        const GdalSetting odsRows("OGR_ODS_HEADERS", "DISABLE");
        const GdalSetting odsCells("OGR_ODS_FIELD_TYPES", "STRING");
        for (int i = 0; i < file_->GetLayerCount() && sheet_ == nullptr; ++i) {
            OGRLayer* const layer = file_->GetLayer(i);
            if (layer->GetFeatureCount() > 0) sheet_ = layer;
        }
        // The driver of ODS stops in the middle of a large sheet and goes on as if nothing were.
        if (errors.failed()) failDamaged(errors.first(), path_);
        if (sheet_ == nullptr) failWithoutPoints(path_);
    }

    bool read(std::vector<std::string>& cells) override {
        const GdalErrors errors;
        const std::unique_ptr<OGRFeature> row(sheet_->GetNextFeature());
        if (errors.failed()) failDamaged(errors.first(), path_);
        cells.clear();
        if (!row) return false;
        for (int i = 0; i < row->GetFieldCount(); ++i)
            cells.emplace_back(row->IsFieldSetAndNotNull(i) ? row->GetFieldAsString(i) : "");
        return true;
    }

private:
    std::string path_;
    OpenedFile file_;
    OGRLayer* sheet_ = nullptr;
};

}  // namespace

std::unique_ptr<SheetReader> makeSheetReader(VectorFormat format, const std::string& path) {
    return std::make_unique<GdalSheetReader>(format, path);
}

}  // namespace kelvo
