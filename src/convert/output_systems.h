// The systems of a result, and the columns that they have.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "conversion/converted_point.h"
#include "geodesy/angle_forms.h"

namespace kelvo {

// The four systems of a given point, and UTM on WGS84.
enum class OutputSystem { Wgs, User, Tm, Utm, WgsUtm };
inline constexpr std::array kAllOutputSystems{OutputSystem::Wgs, OutputSystem::User,
                                              OutputSystem::Tm, OutputSystem::Utm,
                                              OutputSystem::WgsUtm};

// As a command line names them; none for any other word.
[[nodiscard]] std::optional<System> systemOf(std::string_view word);
[[nodiscard]] std::optional<OutputSystem> outputSystemOf(std::string_view word);
[[nodiscard]] std::string_view wordOf(OutputSystem system);

// What the numbers of a column are.
enum class ColumnKind { Angle, Grid, Height, Origin };

struct OutputColumn {
    std::string_view name;
    ColumnKind kind;
    double ConvertedPoint::*value;
};

// In their order: three, or with the origin's longitude four.
[[nodiscard]] std::span<const OutputColumn> columnsOf(OutputSystem system);

// The number columns of some systems, in the order asked for.
[[nodiscard]] std::vector<OutputColumn> columnsOf(std::span<const OutputSystem> systems);

// The text of a number: the cell that a run's table prints, without blanks around it, the general
// text for an origin.
void appendCell(std::string& text, const OutputColumn& column, const ConvertedPoint& point,
                AngleForm angles);

}  // namespace kelvo
