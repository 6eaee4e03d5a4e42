#include "batch/run_defaults.h"

namespace kelvo {

TransPara runDefaults() {
    TransPara para;
    setShift(para, kRecommendedShift);
    para.Kind = ShiftKind::Molodensky;
    setUserEllipsoid(para, kBesselOfParameters);
    para.Zone = TmZone::Centre;
    setTmOrigin(para, originOf(TmZone::Centre));
    setUtmEllipsoid(para, kBesselOfParameters);
    para.UZone = UtmZone::East;
    setUtmOrigin(para, originOf(UtmZone::East));
    para.AddFlag = Flag::On;
    para.CorrFlag = Flag::Off;
    return para;
}

}  // namespace kelvo
