#include "batch/definition_of_para.h"

#include <utility>

namespace kelvo {

Definition definitionOf(const TransPara& para, const DatumState& datum, KnownPoints known) {
    return {.local = {.user = userEllipsoidOf(para),
                      .datum = datum,
                      .adjustment = firstAdjustmentOf(para)},
            .tm = tmOriginOf(para),
            .Zone = para.Zone,
            .shiftsOrigin = para.AddFlag == Flag::On,
            .utm = {.ellipsoid = utmEllipsoidOf(para), .projection = utmOriginOf(para)},
            .UZone = para.UZone,
            .corrects = para.CorrFlag != Flag::Off,
            .known = std::move(known)};
}

}  // namespace kelvo
