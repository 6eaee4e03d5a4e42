// The controls of the plot settings, and the picture that they are for.
#pragma once

#include <array>

#include "form/form.h"

namespace kelvo {

struct ScaleControls {
    explicit ScaleControls(Form& owner) : form(owner) {}

    Form& form;

    Control& frmePcfg = form.frame("frmePcfg", "frmKelvo", "");
    Control& optWGS = form.option("optWGS", "frmePcfg", "plot kind", "WGS  경위도");
    Control& optUGS = form.option("optUGS", "frmePcfg", "plot kind", "사용자 경위도");
    Control& optXY = form.option("optXY", "frmePcfg", "plot kind", "직교좌표");
    Control& optAuto = form.option("optAuto", "frmePcfg", "plot scale", "자동축척");
    Control& optManual = form.option("optManual", "frmePcfg", "plot scale", "수동축척");
    Control& frmeManual = form.frame("frmeManual", "frmePcfg", "수동 축척 정하기");
    Control& lblStart = form.label("lblStart", "frmeManual", "시작 값");
    // The names of the two boxes go with the kind of the plot.
    Control& lblX = form.label("lblX", "frmeManual", "");
    Control& txtXb = form.textBox("txtXb", "frmeManual", "");
    Control& lblY = form.label("lblY", "frmeManual", "");
    Control& txtYb = form.textBox("txtYb", "frmeManual", "");
    Control& txtSpan = form.textBox("txtSpan", "frmeManual", "전체 폭");
    Control& txtInter = form.textBox("txtInter", "frmeManual", "칸 간격");
    Control& txtFontSize = form.textBox("txtFontSize", "frmePcfg", "글자크기");
    Control& cmdPlot = form.button("cmdPlot", "frmePcfg", "적용");
    Control& pctPlot = form.picture("pctPlot", "frmKelvo");

    // In the order in which a scale is shown.
    [[nodiscard]] std::array<Control*, 4> scaleBoxes() const {
        return {&txtXb, &txtYb, &txtSpan, &txtInter};
    }
};

}  // namespace kelvo
