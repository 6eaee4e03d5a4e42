// A file that GDAL reads.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include <gdal_priv.h>

#include "exchange/gdal/gdal_errors.h"
#include "exchange/vector_format.h"

namespace kelvo {

struct CloseOpened {
    void operator()(GDALDataset* dataset) const { GDALClose(dataset); }
};
using OpenedFile = std::unique_ptr<GDALDataset, CloseOpened>;

// With the one driver that reads the format as we want it. ExchangeFault where the file can't be
// read, is another kind of file, or is damaged as far as that shows at its beginning.
[[nodiscard]] OpenedFile openFileOf(VectorFormat format, const std::string& path);

}  // namespace kelvo
