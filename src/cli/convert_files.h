// The files of a conversion, opened by the formats that their names ask for.
#pragma once

#include <memory>

#include "cli/convert_command_line.h"
#include "convert/rows.h"
#include "library/point_converter.h"

namespace kelvo {

// The definition out of its files. Refusal for one that can't be read, BadDefinition for a bad one.
[[nodiscard]] PointConverter converterOf(const ConvertCommandLine& line);

// Refusal where a file would be written that is read as well.
void requireFilesOfTheirOwn(const ConvertCommandLine& line);

[[nodiscard]] std::unique_ptr<RowSource> openSource(const ConvertCommandLine& line,
                                                    const Definition& definition);
[[nodiscard]] std::unique_ptr<RowSink> openSink(const ConvertCommandLine& line,
                                                const Definition& definition);

}  // namespace kelvo
