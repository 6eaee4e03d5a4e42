// The commands that change parameters, wherever their lines come from.
#pragma once

#include <functional>

#include "batch/language.h"
#include "batch/trans_para.h"
#include "common/fields.h"

namespace kelvo {

// The line in hand with its fields, and the way to the next one.
struct ParameterLines {
    FieldStore& fields;
    std::function<void()> readLine;  // a fault at the end
};

// Carries out a command of the kind Parameter, or one that begins a block of parameters; reads its
// further lines. Missing values are 0. True if a run header is due for it. Fault 6 for a zone
// beyond 16 bits.
bool changeParameters(TransPara& para, Command command, ParameterLines& lines);

// A UTM line without coordinates selects the origin 123 or 129; any other number does nothing.
// No header is due for it (required). False for a number that selects nothing.
bool selectUtmOrigin(TransPara& para, double longitude);

}  // namespace kelvo
