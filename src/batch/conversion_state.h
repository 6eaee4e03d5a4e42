// What conversions work on and leave. The application has one, for its batch runs and its clicks.
#pragma once

#include "common/fields.h"
#include "common/point_table.h"
#include "correction/corr_points.h"
#include "geodesy/datum_shift.h"

namespace kelvo {

struct ConversionState {
    PointTable points;
    CorrPointTable known;
    DatumState datum;
    FieldStore fields;
    bool ParaDirty = false;  // a run header is due before the next point
};

}  // namespace kelvo
