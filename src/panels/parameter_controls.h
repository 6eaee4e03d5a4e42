// The controls of the parameter panels: datum shift, first adjustment, known points, ellipsoids
// and origins.
#pragma once

#include <array>
#include <utility>

#include "batch/trans_para.h"
#include "form/form.h"

namespace kelvo {

struct ParameterControls {
    explicit ParameterControls(Form& owner) : form(owner) {}

    Form& form;

    Control& Frame4 = form.frame("Frame4", "frmeOne", "변환매개변수 (WGS->사용자 타원체)");
    Control& cmb7Para = form.combo("cmb7Para", "Frame4", "변수선택");
    Control& txtdX = form.textBox("txtdX", "Frame4", "dX", "m");
    Control& txtdY = form.textBox("txtdY", "Frame4", "dY", "m");
    Control& txtdZ = form.textBox("txtdZ", "Frame4", "dZ", "m");
    Control& txtOmega = form.textBox("txtOmega", "Frame4", "Omega", "초");
    Control& txtPhi = form.textBox("txtPhi", "Frame4", "Phi", "초");
    Control& txtKappa = form.textBox("txtKappa", "Frame4", "Kappa", "초");
    Control& txtdS = form.textBox("txtdS", "Frame4", "축소확대 dS", "E-6");
    Control& optMolod = form.option("optMolod", "Frame4", "kind", "Molodensky");
    Control& optBursa = form.option("optBursa", "Frame4", "kind", "Bursa");
    // Shown only; nothing reads them.
    Control& Text1 = form.textBox("Text1", "Frame4", "WGS장반경", "m");
    Control& Text2 = form.textBox("Text2", "Frame4", "WGS편평도");

    Control& Frame10 = form.frame("Frame10", "frmeOne", "기준점 보정");
    Control& OptCorr = form.option("OptCorr", "Frame10", "correction", "함");
    Control& OptNoCorr = form.option("OptNoCorr", "Frame10", "correction", "안함");

    Control& Frame8 = form.frame("Frame8", "frmeOne", "최종보정량");
    Control& lblUserPhi = form.label("lblUserPhi", "Frame8", "Phi(사용자)=Phi(WGS)");
    Control& lblPlusdPhi = form.label("lblPlusdPhi", "Frame8", "+  dPhi");
    Control& txtdPhi = form.textBox("txtdPhi", "Frame8", "dPhi초");
    Control& txtdLam = form.textBox("txtdLam", "Frame8", "dLam초");
    Control& txtdH = form.textBox("txtdH", "Frame8", "dH(m)");

    Control& Frame5 = form.frame("Frame5", "frmeOne", "사용자 타원체");
    Control& Frame1 = form.frame("Frame1", "Frame5", "타원체");
    Control& txta = form.textBox("txta", "Frame1", "타원체 장반경");
    Control& txtf = form.textBox("txtf", "Frame1", "편평도(1/.....)");
    Control& Frame6 = form.frame("Frame6", "Frame5", "투영원점");
    Control& optWest = form.option("optWest", "Frame6", "zone", "서부");
    Control& optCenter = form.option("optCenter", "Frame6", "zone", "중부");
    Control& optEast = form.option("optEast", "Frame6", "zone", "동부");
    Control& optEastSea = form.option("optEastSea", "Frame6", "zone", "동해");
    Control& optJeju = form.option("optJeju", "Frame6", "zone", "제주도");
    Control& optUser = form.option("optUser", "Frame6", "zone", "사용자");
    Control& txtPhi0 = form.textBox("txtPhi0", "Frame6", "위도원점");
    Control& txtLam0 = form.textBox("txtLam0", "Frame6", "경도원점");
    Control& txtX0 = form.textBox("txtX0", "Frame6", "Xo");
    Control& txtY0 = form.textBox("txtY0", "Frame6", "Yo");
    Control& txtS0 = form.textBox("txtS0", "Frame6", "투영    축척계수");
    Control& Frame7 = form.frame("Frame7", "Frame5", "10.405초 가산");
    Control& optAdd = form.option("optAdd", "Frame7", "add", "가산함");
    Control& optNotAdd = form.option("optNotAdd", "Frame7", "add", "가산안함");

    Control& Frame14 = form.frame("Frame14", "frmeOne", "UTM 타원체");
    Control& Frame15 = form.frame("Frame15", "Frame14", "타원체");
    Control& txtUa = form.textBox("txtUa", "Frame15", "타원체 장반경");
    Control& txtUf = form.textBox("txtUf", "Frame15", "편평도(1/....)");
    Control& Frame16 = form.frame("Frame16", "Frame14", "투영원점");
    Control& optUTM3 = form.option("optUTM3", "Frame16", "utm zone", "123도");
    Control& optUTM9 = form.option("optUTM9", "Frame16", "utm zone", "129도");
    Control& optUUser = form.option("optUUser", "Frame16", "utm zone", "사용자");
    Control& txtUPhi0 = form.textBox("txtUPhi0", "Frame16", "위도원점");
    Control& txtULam0 = form.textBox("txtULam0", "Frame16", "경도원점");
    Control& txtUX0 = form.textBox("txtUX0", "Frame16", "Xo");
    Control& txtUY0 = form.textBox("txtUY0", "Frame16", "Yo");
    Control& txtUS0 = form.textBox("txtUS0", "Frame16", "투영축척계수");

    // The options in the order of their zones.
    [[nodiscard]] std::array<Control*, 6> zoneOptions() const {
        return {&optWest, &optCenter, &optEast, &optEastSea, &optJeju, &optUser};
    }

    // Boxes with the fields that they stand for, in the order in which they are stored and shown.
    using BoxOfField = std::pair<Control*, double TransPara::*>;
    using P = TransPara;
    [[nodiscard]] std::array<BoxOfField, 10> datumFields() const {
        return {{{&txtdX, &P::dX},
                 {&txtdY, &P::dY},
                 {&txtdZ, &P::dZ},
                 {&txtOmega, &P::Omega},
                 {&txtPhi, &P::Phi},
                 {&txtKappa, &P::Kappa},
                 {&txtdPhi, &P::dPhi},
                 {&txtdLam, &P::dLam},
                 {&txtdH, &P::dH},
                 {&txtdS, &P::dS}}};
    }
    [[nodiscard]] std::array<BoxOfField, 2> ellipsoidFields() const {
        return {{{&txta, &P::a}, {&txtf, &P::f}}};
    }
    [[nodiscard]] std::array<BoxOfField, 5> originFields() const {
        return {{{&txtPhi0, &P::Phi0},
                 {&txtLam0, &P::Lam0},
                 {&txtX0, &P::X0},
                 {&txtY0, &P::Y0},
                 {&txtS0, &P::S0}}};
    }
    [[nodiscard]] std::array<BoxOfField, 2> utmEllipsoidFields() const {
        return {{{&txtUa, &P::Ua}, {&txtUf, &P::Uf}}};
    }
    [[nodiscard]] std::array<BoxOfField, 5> utmOriginFields() const {
        return {{{&txtUPhi0, &P::UPhi0},
                 {&txtULam0, &P::ULam0},
                 {&txtUX0, &P::UX0},
                 {&txtUY0, &P::UY0},
                 {&txtUS0, &P::US0}}};
    }

    // The boxes of the shift, which presets fill and open or close as one.
    [[nodiscard]] std::array<Control*, 7> shiftBoxes() const {
        return {&txtdX, &txtdY, &txtdZ, &txtOmega, &txtPhi, &txtKappa, &txtdS};
    }
};

}  // namespace kelvo
