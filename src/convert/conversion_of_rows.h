// All rows of a source, converted into a sink.
#pragma once

#include <cstdint>

#include "convert/rows.h"
#include "library/point_converter.h"

namespace kelvo {

struct ConversionOfRows {
    const PointConverter& converter;
    System system;
    AngleForm angles;  // of given angles
    unsigned jobs = 1;
};

struct Converted {
    std::uint64_t points = 0;
    std::uint64_t notConverted = 0;
};

// Looks on while rows are converted; asked by one thread at a time.
class Watcher {
public:
    virtual ~Watcher() = default;
    // After each block, in the order of the rows.
    virtual void taken(const RowBlock& block, const Converted& soFar, double progress) = 0;
};

// The same rows in the same order whatever the number of jobs is. Memory is that of a block or two
// for each job. What source or sink throw comes out; the sink isn't finished then.
Converted convertRows(RowSource& source, const ConversionOfRows& conversion, RowSink& sink,
                      Watcher& watcher);

// One block, read and not yet prepared.
void convertBlock(RowBlock& block, const ConversionOfRows& conversion);

}  // namespace kelvo
