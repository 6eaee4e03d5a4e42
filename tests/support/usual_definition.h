// The definition that most tests of converted points start from.
#pragma once

#include "conversion/definition.h"

namespace kelvo::testing {

// The parameters of a run as it begins, with either kind of shift.
inline Definition usualDefinition(ShiftKind kind = ShiftKind::Molodensky) {
    Definition definition;
    definition.local.user = kBesselOfParameters;
    KelvoSub::SetDatumPara(definition.local.datum, kRecommendedShift, kind);
    definition.tm = originOf(TmZone::Centre);
    definition.Zone = TmZone::Centre;
    definition.shiftsOrigin = true;
    definition.utm = {kBesselOfParameters, originOf(UtmZone::East)};
    definition.UZone = UtmZone::East;
    return definition;
}

}  // namespace kelvo::testing
