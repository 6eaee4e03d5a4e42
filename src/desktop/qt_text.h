// Texts of the core, which are UTF-8, as Qt's.
#pragma once

#include <QString>
#include <string_view>

namespace kelvo::desktop {

[[nodiscard]] inline QString qt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace kelvo::desktop
