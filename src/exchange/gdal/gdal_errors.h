// What GDAL says while something is done.
#pragma once

#include <string>

namespace kelvo {

// Takes GDAL's messages of this thread as long as it lives; nothing goes to standard error.
class GdalErrors {
public:
    GdalErrors();
    ~GdalErrors();
    GdalErrors(const GdalErrors&) = delete;
    GdalErrors& operator=(const GdalErrors&) = delete;

    // Drivers go on after a failure and call it success, so the first one is kept.
    [[nodiscard]] bool failed() const { return !first_.empty(); }
    [[nodiscard]] const std::string& first() const { return first_; }

private:
    std::string first_;
};

}  // namespace kelvo
