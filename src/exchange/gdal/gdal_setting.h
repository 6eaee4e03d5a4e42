// Settings of GDAL.
#pragma once

#include <cpl_conv.h>

namespace kelvo {

// Of this thread, as long as the object lives; null leaves it as it is by default.
class GdalSetting {
public:
    GdalSetting(const char* name, const char* value) : name_(name) {
        CPLSetThreadLocalConfigOption(name, value);
    }
    ~GdalSetting() { CPLSetThreadLocalConfigOption(name_, nullptr); }
    GdalSetting(const GdalSetting&) = delete;
    GdalSetting& operator=(const GdalSetting&) = delete;

private:
    const char* name_;
};

}  // namespace kelvo
