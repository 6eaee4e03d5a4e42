#include "convert/output_systems.h"

#include <charconv>
#include <cmath>

#include "common/number_text.h"
#include "library/table_cells.h"

namespace kelvo {

namespace {

using P = ConvertedPoint;
using enum ColumnKind;

constexpr std::array kWgs{OutputColumn{"wgs_lat", Angle, &P::WgsPhi},
                          OutputColumn{"wgs_lon", Angle, &P::WgsLam},
                          OutputColumn{"wgs_h", Height, &P::WgsH}};
constexpr std::array kUser{OutputColumn{"user_lat", Angle, &P::UserPhi},
                           OutputColumn{"user_lon", Angle, &P::UserLam},
                           OutputColumn{"user_h", Height, &P::UserH}};
constexpr std::array kTm{OutputColumn{"tm_x", Grid, &P::TmX}, OutputColumn{"tm_y", Grid, &P::TmY},
                         OutputColumn{"tm_h", Height, &P::TmH},
                         OutputColumn{"tm_lon0", Origin, &P::Lam0}};
constexpr std::array kUtm{
    OutputColumn{"utm_x", Grid, &P::UtmX}, OutputColumn{"utm_y", Grid, &P::UtmY},
    OutputColumn{"utm_h", Height, &P::UtmH}, OutputColumn{"utm_lon0", Origin, &P::ULam0}};
constexpr std::array kWgsUtm{OutputColumn{"wgsutm_x", Grid, &P::WgsUtmX},
                             OutputColumn{"wgsutm_y", Grid, &P::WgsUtmY},
                             OutputColumn{"wgsutm_h", Height, &P::WgsUtmH},
                             OutputColumn{"wgsutm_lon0", Origin, &P::WgsULam0}};

// The general text; origins are whole degrees nearly always.
void appendOrigin(std::string& text, double longitude) {
    constexpr double kMostWhole = 1000;
    if (!(longitude > 0 && longitude < kMostWhole && longitude == std::floor(longitude))) {
        text += generalText(longitude);
        return;
    }
    std::array<char, 4> digits{};
    const auto [end, error] =
        std::to_chars(digits.data(), digits.data() + digits.size(), static_cast<int>(longitude));
    text.append(digits.data(), end);
}

}  // namespace

std::optional<System> systemOf(std::string_view word) {
    if (word == "wgs") return System::Wgs;
    if (word == "user") return System::User;
    if (word == "tm") return System::Tm;
    if (word == "utm") return System::Utm;
    return std::nullopt;
}

std::optional<OutputSystem> outputSystemOf(std::string_view word) {
    for (const OutputSystem system : kAllOutputSystems)
        if (word == wordOf(system)) return system;
    return std::nullopt;
}

std::string_view wordOf(OutputSystem system) {
    switch (system) {
        case OutputSystem::Wgs:
            return "wgs";
        case OutputSystem::User:
            return "user";
        case OutputSystem::Tm:
            return "tm";
        case OutputSystem::Utm:
            return "utm";
        case OutputSystem::WgsUtm:
            return "wgsutm";
    }
    return "";
}

std::span<const OutputColumn> columnsOf(OutputSystem system) {
    switch (system) {
        case OutputSystem::Wgs:
            return kWgs;
        case OutputSystem::User:
            return kUser;
        case OutputSystem::Tm:
            return kTm;
        case OutputSystem::Utm:
            return kUtm;
        case OutputSystem::WgsUtm:
            return kWgsUtm;
    }
    return {};
}

std::vector<OutputColumn> columnsOf(std::span<const OutputSystem> systems) {
    std::vector<OutputColumn> all;
    for (const OutputSystem system : systems) {
        const auto columns = columnsOf(system);
        all.insert(all.end(), columns.begin(), columns.end());
    }
    return all;
}

void appendCell(std::string& text, const OutputColumn& column, const ConvertedPoint& point,
                AngleForm angles) {
    const double value = point.*column.value;
    switch (column.kind) {
        case ColumnKind::Angle:
            return appendAngleCell(text, value, angles);
        case ColumnKind::Grid:
            return appendGridCell(text, value);
        case ColumnKind::Height:
            return appendHeightCell(text, value);
        case ColumnKind::Origin:
            return appendOrigin(text, value);
    }
}

}  // namespace kelvo
