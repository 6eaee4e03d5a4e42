#include "panels/scale_panel.h"

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

void PlotSettingsPanel::showScale(const std::array<std::string, 4>& texts) {
    const auto boxes = on_.scaleBoxes();
    for (std::size_t i = 0; i < boxes.size(); ++i) boxes[i]->setText(texts[i]);
}

void PlotSettingsPanel::showAngles(const PlotScale& scale) {
    on_.lblX.setCaption("위도(ddd.mmss)");
    on_.lblY.setCaption("경도(ddd.mmss)");
    const auto boxes = on_.scaleBoxes();
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        const double dms = KelvoSub::DegToDms(double{scale.*kFields[i]});
        boxes[i]->setText(genSub::FormatNum(dms, 3, 4));
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
        boxes[i]->setText(genSub::FormatNum(double{state_.plotCfg.XY.*kFields[i]}, 7, 0));
    on_.optXY.switchOn();
}

void PlotSettingsPanel::optAuto_Click() {
    on_.frmeManual.setEnabled(false);
}

void PlotSettingsPanel::optManual_Click() {
    on_.frmeManual.setEnabled(true);
}

void PlotSettingsPanel::SavePcfgFile() {
    PlotCfg& cfg = state_.plotCfg;
    if (on_.optXY.value()) cfg.PlotKind = 3;
    if (on_.optUGS.value()) cfg.PlotKind = 2;
    if (on_.optWGS.value()) cfg.PlotKind = 1;

    const auto boxes = on_.scaleBoxes();
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        const double number = strictNumberOf(*boxes[i]);
        if (cfg.PlotKind == 3) {
            cfg.XY.*kFields[i] = toSingle(number);
        } else if (cfg.PlotKind == 1 || cfg.PlotKind == 2) {
            PlotScale& scale = cfg.PlotKind == 1 ? cfg.WGS : cfg.UGS;
            scale.*kFields[i] =
                toSingle(reportedDegrees(messages_, number, KelvoSub::DmsToDeg(number)));
        }
    }
    cfg.PlotManual = on_.optAuto.value() ? 0 : 1;
    cfg.PlotFontSize = toSingle(strictNumberOf(on_.txtFontSize));
    writePcfgFile();
}

void PlotSettingsPanel::writePcfgFile() {
    const PlotCfg& cfg = state_.plotCfg;
    std::string text;
    for (const std::int16_t number : {cfg.PlotKind, cfg.PlotManual})
        text.append(numberInFile(number)).append(kLineEnd);
    text.append(numberInFile(cfg.PlotFontSize)).append(kLineEnd);
    for (const PlotScale* scale : {&cfg.WGS, &cfg.UGS, &cfg.XY}) {
        for (const auto field : kFields) text += numberInFile(scale->*field);
        text += kLineEnd;
    }
    disk_.replace(state_.inApplicationFolder(std::string(kFileName)), text);
}

void PlotSettingsPanel::readPcfgFile() {
    PlotCfg& cfg = state_.plotCfg;
    TextReader file(disk_, state_.inApplicationFolder(std::string(kFileName)));
    cfg.PlotKind = roundedInteger16(file.readNumber());
    cfg.PlotManual = roundedInteger16(file.readNumber());
    cfg.PlotFontSize = toSingle(file.readNumber());
    readScale(file, cfg.WGS);
    readScale(file, cfg.UGS);
    readScale(file, cfg.XY);
}

void PlotSettingsPanel::RestorePcfgFile() {
    PlotCfg& cfg = state_.plotCfg;
    for (int recoveries = 0;; ++recoveries) {
        try {
            readPcfgFile();
            optWGS_Click();
            optUGS_Click();
            optXY_Click();
            if (cfg.PlotKind == 1) optWGS_Click();
            if (cfg.PlotKind == 2) optUGS_Click();
            if (cfg.PlotKind == 3) optXY_Click();
            (cfg.PlotManual != 0 ? on_.optManual : on_.optAuto).switchOn();
            on_.txtFontSize.setText(singleText(cfg.PlotFontSize, true));
            return;
        } catch (const RuntimeFault&) {
            // Scales that can't be shown would come back from the new file again and again.
            if (recoveries == 2) throw;
            if (recoveries == 1) cfg.WGS = cfg.UGS = cfg.XY = PlotScale{};
        }
        cfg.PlotKind = 3;
        cfg.PlotManual = 0;
        cfg.PlotFontSize = 8;
        writePcfgFile();
    }
}

}  // namespace kelvo
