// The cells of the result tables, one by one: as a run prints them, without the blanks around.
#pragma once

#include <optional>
#include <string>

#include "common/run_time_fault.h"
#include "conversion/converted_point.h"
#include "geodesy/angle_forms.h"

namespace kelvo {

// Whether a run can write every row of the point. A false one may still turn out writable: what a
// run meets on the way says faultOf....
[[nodiscard]] bool isWritable(const ConvertedPoint& point);

// The fault of a run that writes the point: into the detail report, into the tables of WGS84, user
// ellipsoid, TM and UTM, and into that of UTM on WGS84.
[[nodiscard]] std::optional<RuntimeFault> faultOfDetailRow(const ConvertedPoint& point);
[[nodiscard]] std::optional<RuntimeFault> faultOfTables(const ConvertedPoint& point);
[[nodiscard]] std::optional<RuntimeFault> faultOfLastTable(const ConvertedPoint& point);

// Cells of a writable point.
void appendAngleCell(std::string& text, double degrees, AngleForm form);
void appendGridCell(std::string& text, double metres);
void appendHeightCell(std::string& text, double metres);

}  // namespace kelvo
