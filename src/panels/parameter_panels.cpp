#include "panels/parameter_panels.h"

#include <span>
#include <string>

#include "common/number_text.h"
#include "panels/entry.h"

namespace kelvo {

namespace {

struct Preset {
    std::string_view name;
    std::array<std::string_view, 7> texts;  // in the order of the shift boxes
};

// Entry 0 is the user's own and keeps what stands in the boxes.
constexpr std::array<Preset, 4> kPresets{
    {{.name = "사용자입력", .texts = {}},
     {.name = "측량작업기준(2002추천)",
      .texts = {"115.8", "-474.99", "-674.11", "1.16", "-2.31", "-1.63", "-6.43"}},
     {.name = "측량작업기준(2001)", .texts = {"146.44", "-507.89", "-681.46", "0", "0", "0", "0"}},
     {.name = "서가람(3Para)", .texts = {"144.778", "-503.702", "-684.67", "0", "0", "0", "0"}}}};
constexpr int kOwnPreset = 0;
constexpr int kPresetOfBursa = 1;

// The Bessel ellipsoid as parameter sets carry it.
constexpr std::string_view kBesselAxis = "6377397.155";
constexpr std::string_view kBesselInverseFlattening = "299.1528128";

void enableAll(std::span<Control* const> boxes, bool on) {
    for (Control* box : boxes) box->setEnabled(on);
}

}  // namespace

ParameterPanels::ParameterPanels(Form& form, ProgramState& state) : on_(form), state_(state) {
    on_.Text1.setText("6378137");
    on_.Text2.setText("298.257223563");
    bindReactions();
}

void ParameterPanels::bindReactions() {
    on_.cmb7Para.onClick = [this] { cmb7Para_Click(); };
    on_.optMolod.onClick = [this] { optMolod_Click(); };
    on_.optBursa.onClick = [this] { optBursa_Click(); };
    on_.OptCorr.onClick = [this] { OptCorr_Click(); };
    on_.OptNoCorr.onClick = [this] { OptNoCorr_Click(); };
    on_.optWest.onClick = [this] { optWest_Click(); };
    on_.optCenter.onClick = [this] { optCenter_Click(); };
    on_.optEast.onClick = [this] { optEast_Click(); };
    on_.optEastSea.onClick = [this] { optEastSea_Click(); };
    on_.optJeju.onClick = [this] { optJeju_Click(); };
    on_.optUser.onClick = [this] { optUser_Click(); };
    on_.optAdd.onClick = [this] { optAdd_Click(); };
    on_.optNotAdd.onClick = [this] { optNotAdd_Click(); };
    on_.optUTM3.onClick = [this] { optUTM3_Click(); };
    on_.optUTM9.onClick = [this] { optUTM9_Click(); };
    on_.optUUser.onClick = [this] { optUUser_Click(); };

    const auto bindBox = [this](Control& box) {
        box.onChange = [this] { markChanged(); };
        box.onFocus = [&box] { r(box); };
    };
    for (Control* box : on_.shiftBoxes()) bindBox(*box);
    for (Control* box : on_.originBoxes()) bindBox(*box);
    for (Control* box : on_.utmOriginBoxes()) bindBox(*box);
    for (Control* box : {&on_.txta, &on_.txtf, &on_.txtUa, &on_.txtUf}) bindBox(*box);
    // The first adjustment doesn't select itself on entry: the caret stays where the click put
    // it (required).
    for (Control* box : {&on_.txtdPhi, &on_.txtdLam, &on_.txtdH})
        box->onChange = [this] { markChanged(); };
}

void ParameterPanels::markChanged() {
    state_.conversion.ParaDirty = true;
}

void ParameterPanels::fillPresetList() {
    std::vector<std::string> names;
    names.reserve(kPresets.size());
    for (const Preset& preset : kPresets) names.emplace_back(preset.name);
    on_.cmb7Para.setItems(std::move(names));
}

void ParameterPanels::showFlags() {
    (state_.Cfg.AddFlag == 1 ? on_.optAdd : on_.optNotAdd).switchOn();
    (state_.Cfg.CorrFlag == 1 ? on_.OptCorr : on_.OptNoCorr).switchOn();
}

// Only the first preset chooses the kind of shift; the other two leave it as it stands
// (required).
void ParameterPanels::cmb7Para_Click() {
    const int index = on_.cmb7Para.index();
    if (index < 0 || static_cast<std::size_t>(index) >= kPresets.size()) return;
    const auto boxes = on_.shiftBoxes();
    if (index == kPresetOfBursa) on_.optBursa.switchOn();
    if (index != kOwnPreset) {
        const Preset& preset = kPresets[static_cast<std::size_t>(index)];
        for (std::size_t i = 0; i < boxes.size(); ++i) boxes[i]->setText(preset.texts[i]);
    }
    enableAll(boxes, index == kOwnPreset);
}

void ParameterPanels::optMolod_Click() {
    markChanged();
}

void ParameterPanels::optBursa_Click() {
    markChanged();
}

// The one parameter that goes into the stored set at once.
void ParameterPanels::OptCorr_Click() {
    state_.Cfg.CorrFlag = 1;
    markChanged();
}

void ParameterPanels::OptNoCorr_Click() {
    state_.Cfg.CorrFlag = 0;
    markChanged();
}

void ParameterPanels::showFixedOrigin(std::string_view Lam0, std::string_view X0) {
    on_.txtPhi0.setText("38");
    on_.txtLam0.setText(Lam0);
    on_.txtX0.setText(X0);
    on_.txtY0.setText("200000");
    on_.txtS0.setText("1.00000");
    on_.txta.setText(kBesselAxis);
    on_.txtf.setText(kBesselInverseFlattening);
    enableAll(on_.originBoxes(), false);
}

void ParameterPanels::optWest_Click() {
    showFixedOrigin("125", "500000");
}

void ParameterPanels::optCenter_Click() {
    showFixedOrigin("127", "500000");
}

void ParameterPanels::optEast_Click() {
    showFixedOrigin("129", "500000");
}

void ParameterPanels::optEastSea_Click() {
    showFixedOrigin("131", "500000");
}

void ParameterPanels::optJeju_Click() {
    showFixedOrigin("127", "550000");
}

void ParameterPanels::optUser_Click() {
    enableAll(on_.originBoxes(), true);
}

void ParameterPanels::optAdd_Click() {
    markChanged();
}

void ParameterPanels::optNotAdd_Click() {
    markChanged();
}

void ParameterPanels::showFixedUtmOrigin(std::string_view ULam0) {
    on_.txtUPhi0.setText("0");
    on_.txtULam0.setText(ULam0);
    on_.txtUX0.setText("0");
    on_.txtUY0.setText("500000");
    on_.txtUS0.setText("0.9996");
    enableAll(on_.utmOriginBoxes(), false);
}

void ParameterPanels::optUTM3_Click() {
    showFixedUtmOrigin("123");
}

void ParameterPanels::optUTM9_Click() {
    showFixedUtmOrigin("129");
}

void ParameterPanels::optUUser_Click() {
    enableAll(on_.utmOriginBoxes(), true);
}

void ParameterPanels::followZone(double longitude) {
    if (!on_.optWest.value() && !on_.optCenter.value() && !on_.optEast.value() &&
        !on_.optEastSea.value())
        return;
    if (longitude < 126.0)
        on_.optWest.switchOn();
    else if (longitude <= 128.0)
        on_.optCenter.switchOn();
    else if (longitude <= 130.0)
        on_.optEast.switchOn();
    else
        on_.optEastSea.switchOn();
}

void ParameterPanels::followUtmZone(double longitude) {
    if (!on_.optUTM3.value() && !on_.optUTM9.value()) return;
    if (longitude < 126.0) on_.optUTM3.switchOn();
    if (longitude > 126.0) on_.optUTM9.switchOn();
}

void ParameterPanels::SaveCfg() {
    TransPara& Cfg = state_.Cfg;
    const auto number = [](const Control& box) { return strictNumberOf(box); };

    Cfg.Kind = on_.optMolod.value() ? 1 : 2;
    Cfg.dX = number(on_.txtdX);
    Cfg.dY = number(on_.txtdY);
    Cfg.dZ = number(on_.txtdZ);
    Cfg.Omega = number(on_.txtOmega);
    Cfg.Phi = number(on_.txtPhi);
    Cfg.Kappa = number(on_.txtKappa);
    Cfg.dPhi = number(on_.txtdPhi);
    Cfg.dLam = number(on_.txtdLam);
    Cfg.dH = number(on_.txtdH);
    Cfg.dS = number(on_.txtdS);
    Cfg.CorrFlag = on_.OptCorr.value() ? 1 : 0;

    const std::array zones{&on_.optWest,    &on_.optCenter, &on_.optEast,
                           &on_.optEastSea, &on_.optJeju,   &on_.optUser};
    for (std::size_t i = 0; i < zones.size(); ++i)
        if (zones[i]->value()) Cfg.Zone = static_cast<std::int16_t>(i + 1);
    Cfg.Phi0 = number(on_.txtPhi0);
    Cfg.Lam0 = number(on_.txtLam0);
    Cfg.X0 = number(on_.txtX0);
    Cfg.Y0 = number(on_.txtY0);
    Cfg.S0 = number(on_.txtS0);
    // Off is 2 here and 0 in data files; every test is for 1.
    Cfg.AddFlag = on_.optAdd.value() ? 1 : 2;
    Cfg.a = number(on_.txta);
    Cfg.f = number(on_.txtf);

    if (on_.optUTM3.value()) Cfg.UZone = 1;
    if (on_.optUTM9.value()) Cfg.UZone = 2;
    // Required: this looks at the user origin of the TM panel, so a user UTM origin alone
    // leaves UZone as it was.
    if (on_.optUser.value()) Cfg.UZone = 3;
    Cfg.UPhi0 = number(on_.txtUPhi0);
    Cfg.ULam0 = number(on_.txtULam0);
    Cfg.UX0 = number(on_.txtUX0);
    Cfg.UY0 = number(on_.txtUY0);
    Cfg.US0 = number(on_.txtUS0);
    Cfg.Ua = number(on_.txtUa);
    Cfg.Uf = number(on_.txtUf);
}

void ParameterPanels::FillDefault() {
    const TransPara& Cfg = state_.Cfg;
    const auto show = [](Control& box, double value) { box.setText(generalText(value)); };

    (Cfg.Kind == 1 ? on_.optMolod : on_.optBursa).switchOn();
    show(on_.txtdX, Cfg.dX);
    show(on_.txtdY, Cfg.dY);
    show(on_.txtdZ, Cfg.dZ);
    show(on_.txtOmega, Cfg.Omega);
    show(on_.txtPhi, Cfg.Phi);
    show(on_.txtKappa, Cfg.Kappa);
    show(on_.txtdPhi, Cfg.dPhi);
    show(on_.txtdLam, Cfg.dLam);
    show(on_.txtdH, Cfg.dH);
    show(on_.txtdS, Cfg.dS);
    (Cfg.CorrFlag == 1 ? on_.OptCorr : on_.OptNoCorr).switchOn();
    on_.cmb7Para.choose(kOwnPreset);
    show(on_.txta, Cfg.a);
    show(on_.txtf, Cfg.f);

    switch (Cfg.Zone) {
        case 1:
            on_.optWest.switchOn();
            break;
        case 2:
            on_.optCenter.switchOn();
            break;
        case 3:
            on_.optEast.switchOn();
            break;
        case 4:
            on_.optEastSea.switchOn();
            break;
        case 5:
            on_.optJeju.switchOn();
            break;
        default:
            on_.optUser.switchOn();
            show(on_.txtPhi0, Cfg.Phi0);
            show(on_.txtLam0, Cfg.Lam0);
            show(on_.txtX0, Cfg.X0);
            show(on_.txtY0, Cfg.Y0);
            show(on_.txtS0, Cfg.S0);
            enableAll(on_.originBoxes(), true);
    }
    if (Cfg.AddFlag == 1) on_.optAdd.switchOn();
    show(on_.txtUa, Cfg.Ua);
    show(on_.txtUf, Cfg.Uf);

    switch (Cfg.UZone) {
        case 1:
            on_.optUTM3.switchOn();
            break;
        case 2:
            on_.optUTM9.switchOn();
            break;
        default:
            on_.optUUser.switchOn();
            show(on_.txtUPhi0, Cfg.UPhi0);
            show(on_.txtULam0, Cfg.ULam0);
            show(on_.txtUX0, Cfg.UX0);
            show(on_.txtUY0, Cfg.UY0);
            show(on_.txtUS0, Cfg.US0);
            enableAll(on_.utmOriginBoxes(), true);
    }
}

}  // namespace kelvo
