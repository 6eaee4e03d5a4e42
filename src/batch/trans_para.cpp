#include "batch/trans_para.h"

namespace kelvo {

ShiftParameters shiftOf(const TransPara& para) {
    return {.dX = para.dX,
            .dY = para.dY,
            .dZ = para.dZ,
            .Omega = para.Omega,
            .Phi = para.Phi,
            .Kappa = para.Kappa,
            .dS = para.dS};
}

FirstAdjustment firstAdjustmentOf(const TransPara& para) {
    return {.dPhi = para.dPhi, .dLam = para.dLam, .dH = para.dH};
}

Ellipsoid userEllipsoidOf(const TransPara& para) {
    return {.a = para.a, .f = para.f};
}

Projection tmOriginOf(const TransPara& para) {
    return {.X0 = para.X0, .Y0 = para.Y0, .Phi0 = para.Phi0, .Lam0 = para.Lam0, .S0 = para.S0};
}

Ellipsoid utmEllipsoidOf(const TransPara& para) {
    return {.a = para.Ua, .f = para.Uf};
}

Projection utmOriginOf(const TransPara& para) {
    return {.X0 = para.UX0, .Y0 = para.UY0, .Phi0 = para.UPhi0, .Lam0 = para.ULam0, .S0 = para.US0};
}

void setShift(TransPara& para, const ShiftParameters& shift) {
    para.dX = shift.dX;
    para.dY = shift.dY;
    para.dZ = shift.dZ;
    para.Omega = shift.Omega;
    para.Phi = shift.Phi;
    para.Kappa = shift.Kappa;
    para.dS = shift.dS;
}

void setUserEllipsoid(TransPara& para, const Ellipsoid& ellipsoid) {
    para.a = ellipsoid.a;
    para.f = ellipsoid.f;
}

void setTmOrigin(TransPara& para, const Projection& origin) {
    para.Phi0 = origin.Phi0;
    para.Lam0 = origin.Lam0;
    para.X0 = origin.X0;
    para.Y0 = origin.Y0;
    para.S0 = origin.S0;
}

void setUtmEllipsoid(TransPara& para, const Ellipsoid& ellipsoid) {
    para.Ua = ellipsoid.a;
    para.Uf = ellipsoid.f;
}

void setUtmOrigin(TransPara& para, const Projection& origin) {
    para.UPhi0 = origin.Phi0;
    para.ULam0 = origin.Lam0;
    para.UX0 = origin.X0;
    para.UY0 = origin.Y0;
    para.US0 = origin.S0;
}

}  // namespace kelvo
