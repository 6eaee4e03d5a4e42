#include "exchange/gdal/gdal_errors.h"

#include <cpl_error.h>

namespace kelvo {

namespace {

void CPL_STDCALL keepFirst(CPLErr kind, CPLErrorNum, const char* text) {
    if (kind != CE_Failure && kind != CE_Fatal) return;
    auto& first = *static_cast<std::string*>(CPLGetErrorHandlerUserData());
    if (first.empty()) first = *text != '\0' ? text : "?";
}

}  // namespace

GdalErrors::GdalErrors() {
    CPLPushErrorHandlerEx(keepFirst, &first_);
}

GdalErrors::~GdalErrors() {
    CPLPopErrorHandler();
}

}  // namespace kelvo
