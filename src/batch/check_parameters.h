// The rules on parameters: the values of a command, as its lines give them and as they count.
#pragma once

#include <span>

#include "batch/check_finding.h"
#include "batch/language.h"
#include "batch/trans_para.h"

namespace kelvo {

// The further lines of a command hold its numbers. All of them; fewer than the command has when
// the file ends inside it.
void checkValueLines(Command command, std::span<const TextLine> values, Findings& findings);

// What a command of the kind Parameter, or one that begins a block of parameters, has made of the
// parameters.
void checkParameters(const TextLine& line, const LineFields& fields, Command command,
                     const TransPara& para, Findings& findings);

// A UTM line without coordinates that selects no origin.
void addNoSuchUtmOrigin(const TextLine& line, const LineFields& fields, Findings& findings);

}  // namespace kelvo
