#include "panels/plot_settings_panel.h"

#include <algorithm>
#include <string>

#include "batch/wording.h"
#include "common/checked_arithmetic.h"
#include "common/code_page.h"
#include "common/fixed_width.h"
#include "common/number_text.h"
#include "common/text_constants.h"
#include "common/text_file.h"
#include "geodesy/angle_forms.h"
#include "panels/entry.h"

namespace kelvo {

namespace {

constexpr std::string_view kFileName = "plot.cfg";

constexpr std::array kFields{&PlotScale::Xb, &PlotScale::Yb, &PlotScale::Span, &PlotScale::Inter};

// Sign place, number, blank.
std::string numberInFile(float value) {
    return (value < 0 ? "" : " ") + singleText(value, false) + " ";
}

std::string textOf(const PlotCfg& cfg) {
    std::string text;
    for (const std::int16_t number : {static_cast<std::int16_t>(cfg.PlotKind), cfg.PlotManual})
        text.append(numberInFile(number)).append(kLineEnd);
    text.append(numberInFile(cfg.PlotFontSize)).append(kLineEnd);
    for (const PlotScale* scale : {&cfg.WGS, &cfg.UGS, &cfg.XY}) {
        for (const auto field : kFields) text += numberInFile(scale->*field);
        text += kLineEnd;
    }
    return text;
}

class NoMessages final : public MessageBoxes {
public:
    Answer show(const Message& /*message*/) override { return Answer::Ok; }
};

std::string angleText(float degrees) {
    return genSub::FormatNum(KelvoSub::DegToDms(double{degrees}), 3, 4);
}

std::string lengthText(float metres) {
    return genSub::FormatNum(double{metres}, 7, 0);
}

// As the boxes show them: what they round away is nobody's change.
bool isSameShown(const PlotScale& one, const PlotScale& other, bool angles) {
    return std::ranges::all_of(kFields, [&](auto field) {
        return angles ? angleText(one.*field) == angleText(other.*field)
                      : lengthText(one.*field) == lengthText(other.*field);
    });
}

struct MergedPlotSettings {
    PlotCfg cfg;
    bool conflict = false;  // both changed the same
};

// What this program changed, and for all else what another one saved; the four values of a scale
// stay together.
MergedPlotSettings mergedPlotSettings(const PlotCfg& mine, const PlotCfg& untouched,
                                      const PlotCfg& theirs, const PlotCfg& before) {
    MergedPlotSettings merged{.cfg = theirs};
    const auto settle = [&](auto part, const auto& isSame) {
        if (isSame(mine.*part, untouched.*part)) return;
        merged.cfg.*part = mine.*part;
        if (!isSame(theirs.*part, before.*part) && !isSame(theirs.*part, mine.*part))
            merged.conflict = true;
    };
    const auto isEqual = [](auto one, auto other) { return one == other; };
    settle(&PlotCfg::PlotKind, isEqual);
    settle(&PlotCfg::PlotManual, isEqual);
    settle(&PlotCfg::PlotFontSize, isEqual);
    const auto areSameAngles = [](const PlotScale& one, const PlotScale& other) {
        return isSameShown(one, other, true);
    };
    settle(&PlotCfg::WGS, areSameAngles);
    settle(&PlotCfg::UGS, areSameAngles);
    settle(&PlotCfg::XY, [](const PlotScale& one, const PlotScale& other) {
        return isSameShown(one, other, false);
    });
    return merged;
}

void readScale(TextReader& file, PlotScale& scale) {
    for (const auto field : kFields) scale.*field = toSingle(file.readNumber());
}

}  // namespace

PlotSettingsPanel::PlotSettingsPanel(Form& form, ProgramState& state, Disk& disk,
                                     MessageBoxes& messages)
    : on_(form), state_(state), disk_(disk), messages_(messages) {
    on_.optWGS.onClick = [this] { optWGS_Click(); };
    on_.optUGS.onClick = [this] { optUGS_Click(); };
    on_.optXY.onClick = [this] { optXY_Click(); };
    on_.optAuto.onClick = [this] { optAuto_Click(); };
    on_.optManual.onClick = [this] { optManual_Click(); };
    for (Control* box : on_.scaleBoxes()) box->onFocus = [box] { r(*box); };
    on_.txtFontSize.onFocus = [this] { r(on_.txtFontSize); };
}

void PlotSettingsPanel::takeScale(PointPlot drawn, const std::array<std::string, 4>& texts) {
    if (chosenKind() == drawn) {
        const auto boxes = on_.scaleBoxes();
        for (std::size_t i = 0; i < boxes.size(); ++i) boxes[i]->setText(texts[i]);
        SavePcfgFile();
        return;
    }
    PlotScale* scale = state_.plotCfg.scaleOf(drawn);
    for (std::size_t i = 0; scale != nullptr && i < texts.size(); ++i)
        scale->*kFields[i] = valueOf(strictNumber(texts[i]), drawn, messages_);
}

// A box as the settings hold it: metres, or decimal degrees for the ddd.mmss of the angle plots.
float PlotSettingsPanel::valueOf(double number, PointPlot kind, MessageBoxes& messages) {
    if (kind == PointPlot::XY) return toSingle(number);
    return toSingle(reportedDegrees(messages, number, KelvoSub::DmsToDeg(number)));
}

void PlotSettingsPanel::showAngles(const PlotScale& scale) {
    on_.lblX.setCaption("위도(ddd.mmss)");
    on_.lblY.setCaption("경도(ddd.mmss)");
    const auto boxes = on_.scaleBoxes();
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        boxes[i]->setText(angleText(scale.*kFields[i]));
    }
}

void PlotSettingsPanel::optWGS_Click() {
    showAngles(state_.plotCfg.WGS);
    on_.optWGS.switchOn();
}

void PlotSettingsPanel::optUGS_Click() {
    showAngles(state_.plotCfg.UGS);
    on_.optUGS.switchOn();
}

void PlotSettingsPanel::optXY_Click() {
    on_.lblX.setCaption("X(m)");
    on_.lblY.setCaption("Y(m)");
    const auto boxes = on_.scaleBoxes();
    for (std::size_t i = 0; i < boxes.size(); ++i)
        boxes[i]->setText(lengthText(state_.plotCfg.XY.*kFields[i]));
    on_.optXY.switchOn();
}

void PlotSettingsPanel::optAuto_Click() {
    on_.frmeManual.setEnabled(false);
}

void PlotSettingsPanel::optManual_Click() {
    on_.frmeManual.setEnabled(true);
}

PointPlot PlotSettingsPanel::chosenKind() const {
    if (on_.optWGS.value()) return PointPlot::WGS;
    if (on_.optUGS.value()) return PointPlot::UGS;
    if (on_.optXY.value()) return PointPlot::XY;
    return state_.plotCfg.PlotKind;  // none is on before the settings were restored
}

void PlotSettingsPanel::SavePcfgFile() {
    takePanel(state_.plotCfg, messages_);
    writePcfgFile();
}

void PlotSettingsPanel::takePanel(PlotCfg& cfg, MessageBoxes& messages) const {
    cfg.PlotKind = chosenKind();
    PlotScale* scale = cfg.scaleOf(cfg.PlotKind);
    const auto boxes = on_.scaleBoxes();
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        const double number = strictNumberOf(*boxes[i]);
        if (scale != nullptr) scale->*kFields[i] = valueOf(number, cfg.PlotKind, messages);
    }
    cfg.PlotManual = on_.optAuto.value() ? 0 : 1;
    cfg.PlotFontSize = toSingle(strictNumberOf(on_.txtFontSize));
}

void PlotSettingsPanel::writePcfgFile() {
    const PlotCfg& mine = state_.plotCfg;
    SavedSettings& saved = state_.saved;
    PlotCfg written = mine;
    bool theirsIsKept = false;
    SettingsFile file(disk_, path(), saved.plotFile);
    file.write(textOf(mine), [&] {
        theirsIsKept = true;
        try {
            PlotCfg theirs;
            readInto(theirs);
            const auto merged =
                mergedPlotSettings(mine, saved.plotInPanel, theirs, saved.plotInFile);
            written = merged.cfg;
            theirsIsKept = merged.conflict;
        } catch (const RuntimeFault&) {
            // It can't be read, so it can't have been meant for this program.
        }
        if (theirsIsKept) keepAside(disk_, path());
        return textOf(written);
    });
    saved.plotInFile = written;
    saved.plotInPanel = mine;
    if (theirsIsKept) {
        messages_.tell(
            "다른 Kelvo 창에서 저장한 그림 설정과 이 창의 설정이 서로 다릅니다.\r\n"
            "이 창의 값을 저장하였고, 다른 창에서 저장한 설정은 plot.cfg.old에 남겼습니다.");
    }
}

std::string PlotSettingsPanel::path() const {
    return state_.inApplicationFolder(std::string(kFileName));
}

void PlotSettingsPanel::readInto(PlotCfg& cfg) const {
    TextReader file(disk_, path());
    cfg.PlotKind = static_cast<PointPlot>(roundedInteger16(file.readNumber()));
    cfg.PlotManual = roundedInteger16(file.readNumber());
    cfg.PlotFontSize = toSingle(file.readNumber());
    readScale(file, cfg.WGS);
    readScale(file, cfg.UGS);
    readScale(file, cfg.XY);
}

void PlotSettingsPanel::showSettings() {
    const PlotCfg& cfg = state_.plotCfg;
    optWGS_Click();
    optUGS_Click();
    optXY_Click();
    if (cfg.PlotKind == PointPlot::WGS) optWGS_Click();
    if (cfg.PlotKind == PointPlot::UGS) optUGS_Click();
    if (cfg.PlotKind == PointPlot::XY) optXY_Click();
    (cfg.PlotManual != 0 ? on_.optManual : on_.optAuto).switchOn();
    on_.txtFontSize.setText(singleText(cfg.PlotFontSize, true));
}

void PlotSettingsPanel::RestorePcfgFile() {
    PlotCfg& cfg = state_.plotCfg;
    SettingsFile file(disk_, path(), state_.saved.plotFile);
    file.readOrReplace(
        [&] {
            readInto(cfg);
            showSettings();
        },
        [&](int recovery) {
            // Scales that can't be shown would come back from the new file again and again.
            if (recovery == 2) cfg.WGS = cfg.UGS = cfg.XY = PlotScale{};
            cfg.PlotKind = PointPlot::XY;
            cfg.PlotManual = 0;
            cfg.PlotFontSize = 8;
            disk_.replace(path(), textOf(cfg));
        });
    state_.saved.plotInFile = cfg;
    noteUntouchedPanel();
}

// The boxes give rounded values back, with nobody touching them.
void PlotSettingsPanel::noteUntouchedPanel() {
    state_.saved.plotInPanel = state_.plotCfg;
    NoMessages silence;
    try {
        takePanel(state_.saved.plotInPanel, silence);
    } catch (const RuntimeFault&) {
        // What can't be taken is no change of this program.
    }
}

}  // namespace kelvo
