#include "panels/parameter_panels.h"

#include <optional>
#include <span>
#include <string_view>

#include "common/number_text.h"
#include "panels/entry.h"

namespace kelvo {

namespace {

using BoxOfField = ParameterControls::BoxOfField;

struct Preset {
    std::string_view name;
    ShiftParameters shift;
    // Required: only the recommended shift chooses its kind; the others leave it as it stands.
    std::optional<ShiftKind> kind;
};

// Entry 0 is the user's own and keeps what stands in the boxes.
constexpr std::array kPresets{
    Preset{"사용자입력", {}, {}},
    Preset{"측량작업기준(2002추천)", kRecommendedShift, ShiftKind::Bursa},
    Preset{"측량작업기준(2001)", {.dX = 146.44, .dY = -507.89, .dZ = -681.46}, {}},
    Preset{"서가람(3Para)", {.dX = 144.778, .dY = -503.702, .dZ = -684.67}, {}},
};
constexpr int kOwnPreset = 0;

// The scale of the fixed TM origins, trailing zeros and all: required.
constexpr const char* kScaleText = "1.00000";

void enableAll(std::span<Control* const> boxes, bool on) {
    for (Control* box : boxes) box->setEnabled(on);
}

void enableAll(std::span<const BoxOfField> boxes, bool on) {
    for (const auto& [box, field] : boxes) box->setEnabled(on);
}

void show(std::span<const BoxOfField> boxes, const TransPara& para) {
    for (const auto& [box, field] : boxes) box->setText(generalText(para.*field));
}

void store(std::span<const BoxOfField> boxes, TransPara& para) {
    for (const auto& [box, field] : boxes) para.*field = strictNumberOf(*box);
}

// The place of the option that is on, counted from 1; none if all are off.
std::optional<std::int16_t> optionThatIsOn(std::span<Control* const> options) {
    for (std::size_t i = 0; i < options.size(); ++i)
        if (options[i]->value()) return static_cast<std::int16_t>(i + 1);
    return std::nullopt;
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

    const auto bind = [this](std::span<const BoxOfField> boxes) {
        for (const auto& [box, field] : boxes) {
            box->onChange = [this] { markChanged(); };
            box->onFocus = [entered = box] { r(*entered); };
        }
    };
    bind(on_.datumFields());
    bind(on_.ellipsoidFields());
    bind(on_.originFields());
    bind(on_.utmEllipsoidFields());
    bind(on_.utmOriginFields());
    // The first adjustment doesn't select itself on entry: the caret stays where the click put
    // it (required).
    for (Control* box : {&on_.txtdPhi, &on_.txtdLam, &on_.txtdH}) box->onFocus = nullptr;
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
    (state_.Cfg.AddFlag == Flag::On ? on_.optAdd : on_.optNotAdd).switchOn();
    (state_.Cfg.CorrFlag == Flag::On ? on_.OptCorr : on_.OptNoCorr).switchOn();
}

void ParameterPanels::cmb7Para_Click() {
    const int index = on_.cmb7Para.index();
    if (index < 0 || static_cast<std::size_t>(index) >= kPresets.size()) return;
    const auto boxes = on_.shiftBoxes();
    if (index != kOwnPreset) {
        const auto& [name, shift, kind] = kPresets[static_cast<std::size_t>(index)];
        if (kind) (*kind == ShiftKind::Bursa ? on_.optBursa : on_.optMolod).switchOn();
        const std::array values{shift.dX,  shift.dY,    shift.dZ, shift.Omega,
                                shift.Phi, shift.Kappa, shift.dS};
        for (std::size_t i = 0; i < boxes.size(); ++i) boxes[i]->setText(generalText(values[i]));
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
    state_.Cfg.CorrFlag = Flag::On;
    markChanged();
}

void ParameterPanels::OptNoCorr_Click() {
    state_.Cfg.CorrFlag = Flag::Off;
    markChanged();
}

void ParameterPanels::showFixedOrigin(TmZone zone) {
    TransPara origin;
    setTmOrigin(origin, originOf(zone));
    setUserEllipsoid(origin, kBesselOfParameters);
    for (const auto& [box, field] : on_.originFields())
        box->setText(box == &on_.txtS0 ? kScaleText : generalText(origin.*field));
    show(on_.ellipsoidFields(), origin);
    enableAll(on_.originFields(), false);
}

void ParameterPanels::optWest_Click() {
    showFixedOrigin(TmZone::West);
}

void ParameterPanels::optCenter_Click() {
    showFixedOrigin(TmZone::Centre);
}

void ParameterPanels::optEast_Click() {
    showFixedOrigin(TmZone::East);
}

void ParameterPanels::optEastSea_Click() {
    showFixedOrigin(TmZone::EastSea);
}

void ParameterPanels::optJeju_Click() {
    showFixedOrigin(TmZone::Jeju);
}

void ParameterPanels::optUser_Click() {
    enableAll(on_.originFields(), true);
}

void ParameterPanels::optAdd_Click() {
    markChanged();
}

void ParameterPanels::optNotAdd_Click() {
    markChanged();
}

void ParameterPanels::showFixedUtmOrigin(UtmZone zone) {
    TransPara origin;
    setUtmOrigin(origin, originOf(zone));
    show(on_.utmOriginFields(), origin);
    enableAll(on_.utmOriginFields(), false);
}

void ParameterPanels::optUTM3_Click() {
    showFixedUtmOrigin(UtmZone::West);
}

void ParameterPanels::optUTM9_Click() {
    showFixedUtmOrigin(UtmZone::East);
}

void ParameterPanels::optUUser_Click() {
    enableAll(on_.utmOriginFields(), true);
}

bool ParameterPanels::followsZone() const {
    return on_.optWest.value() || on_.optCenter.value() || on_.optEast.value() ||
           on_.optEastSea.value();
}

void ParameterPanels::followZone(double longitude) {
    if (!followsZone()) return;
    const auto zone = static_cast<std::size_t>(tmZoneAt(longitude));
    on_.zoneOptions()[zone - 1]->switchOn();
}

void ParameterPanels::followUtmZone(double longitude) {
    if (!on_.optUTM3.value() && !on_.optUTM9.value()) return;
    if (longitude == kWestLimit) return;
    (utmZoneAt(longitude) == UtmZone::West ? on_.optUTM3 : on_.optUTM9).switchOn();
}

void ParameterPanels::SaveCfg() {
    TransPara& Cfg = state_.Cfg;
    Cfg.Kind = on_.optMolod.value() ? ShiftKind::Molodensky : ShiftKind::Bursa;
    store(on_.datumFields(), Cfg);
    Cfg.CorrFlag = on_.OptCorr.value() ? Flag::On : Flag::Off;
    if (const auto zone = optionThatIsOn(on_.zoneOptions())) Cfg.Zone = TmZone{*zone};
    store(on_.originFields(), Cfg);
    Cfg.AddFlag = on_.optAdd.value() ? Flag::On : kNotAdded;
    store(on_.ellipsoidFields(), Cfg);
    if (on_.optUTM3.value()) Cfg.UZone = UtmZone::West;
    if (on_.optUTM9.value()) Cfg.UZone = UtmZone::East;
    // Required: this looks at the user origin of the TM panel, so a user UTM origin alone
    // leaves UZone as it was.
    if (on_.optUser.value()) Cfg.UZone = UtmZone::User;
    store(on_.utmOriginFields(), Cfg);
    store(on_.utmEllipsoidFields(), Cfg);
}

void ParameterPanels::FillDefault() {
    const TransPara& Cfg = state_.Cfg;
    (Cfg.Kind == ShiftKind::Molodensky ? on_.optMolod : on_.optBursa).switchOn();
    show(on_.datumFields(), Cfg);
    (Cfg.CorrFlag == Flag::On ? on_.OptCorr : on_.OptNoCorr).switchOn();
    on_.cmb7Para.choose(kOwnPreset);
    show(on_.ellipsoidFields(), Cfg);

    if (Cfg.Zone >= TmZone::West && Cfg.Zone <= TmZone::Jeju) {
        on_.zoneOptions()[static_cast<std::size_t>(Cfg.Zone) - 1]->switchOn();
    } else {
        on_.optUser.switchOn();
        show(on_.originFields(), Cfg);
        enableAll(on_.originFields(), true);
    }
    if (Cfg.AddFlag == Flag::On) on_.optAdd.switchOn();
    show(on_.utmEllipsoidFields(), Cfg);

    if (Cfg.UZone == UtmZone::West) {
        on_.optUTM3.switchOn();
    } else if (Cfg.UZone == UtmZone::East) {
        on_.optUTM9.switchOn();
    } else {
        on_.optUUser.switchOn();
        show(on_.utmOriginFields(), Cfg);
        enableAll(on_.utmOriginFields(), true);
    }
}

}  // namespace kelvo
