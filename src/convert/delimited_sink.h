// Converted points into delimited text.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "common/disk.h"
#include "convert/output_systems.h"
#include "convert/rows.h"

namespace kelvo {

// Commas, a header line, LF; a field with a comma, quote or line end is quoted. A bad point has
// its name and its status only.
class DelimitedSink final : public RowSink {
public:
    // The header is written at once. `output` takes its place when it is closed.
    DelimitedSink(std::unique_ptr<ByteWriter> output, std::vector<OutputColumn> columns,
                  AngleForm angles);

    void prepare(RowBlock& block) const override;
    void take(const RowBlock& block) override;
    void finish() override;

private:
    void write(std::string_view text);

    std::unique_ptr<ByteWriter> output_;
    std::vector<OutputColumn> columns_;
    AngleForm angles_;
};

}  // namespace kelvo
