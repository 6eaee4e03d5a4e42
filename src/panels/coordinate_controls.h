// The controls of the one-point conversion: four frames of coordinates with arrows between them.
#pragma once

#include <array>

#include "form/form.h"

namespace kelvo {

// A latitude, a longitude and a height in decimal degrees and in ddd.mmssss, and the two options
// that say which group is typed into.
struct AnglePair {
    Control& degreesOption;
    std::array<Control*, 3> degrees;
    Control& dmsOption;
    std::array<Control*, 3> dms;
};

struct CoordinateControls {
    explicit CoordinateControls(Form& owner) : form(owner) {}

    Form& form;

    Control& frmeWGS = form.frame("frmeWGS", "frmeOne", "WGS");
    Control& optWdeg = form.option("optWdeg", "frmeWGS", "wgs angle", "각도단위");
    Control& txtWdegPhi = form.textBox("txtWdegPhi", "frmeWGS", "위도");
    Control& txtWdegLam = form.textBox("txtWdegLam", "frmeWGS", "경도");
    Control& txtWdegTH = form.textBox("txtWdegTH", "frmeWGS", "타원체고");
    Control& optWdms = form.option("optWdms", "frmeWGS", "wgs angle", "deg.mmssss...단위");
    Control& txtWdmsPhi = form.textBox("txtWdmsPhi", "frmeWGS", "위도");
    Control& txtWdmsLam = form.textBox("txtWdmsLam", "frmeWGS", "경도");
    Control& txtWdmsTH = form.textBox("txtWdmsTH", "frmeWGS", "타원체고");
    Control& txtwGeoid = form.textBox("txtwGeoid", "frmeWGS", "지오이드고");
    Control& txtwH = form.textBox("txtwH", "frmeWGS", "정표고");

    Control& cmdW2B = form.button("cmdW2B", "frmeOne", "->");
    Control& lblDatum = form.label("lblDatum", "frmeOne", "환산하기");
    Control& cmdB2W = form.button("cmdB2W", "frmeOne", "<-");

    Control& Frame2 = form.frame("Frame2", "frmeOne", "경위도 (사용자 타원체)");
    Control& optBdeg = form.option("optBdeg", "Frame2", "user angle", "각도단위");
    Control& txtBdegPhi = form.textBox("txtBdegPhi", "Frame2", "위도");
    Control& txtBdegLam = form.textBox("txtBdegLam", "Frame2", "경도");
    Control& txtBdegH = form.textBox("txtBdegH", "Frame2", "표고");
    Control& optBdms = form.option("optBdms", "Frame2", "user angle", "deg.mmsss...단위");
    Control& txtBdmsPhi = form.textBox("txtBdmsPhi", "Frame2", "위도");
    Control& txtBdmsLam = form.textBox("txtBdmsLam", "Frame2", "경도");
    Control& txtBdmsH = form.textBox("txtBdmsH", "Frame2", "표고");
    Control& txtBGeoid = form.textBox("txtBGeoid", "Frame2", "지오이드고");
    Control& txtBTH = form.textBox("txtBTH", "Frame2", "타원체고");

    Control& cmdGP2TM = form.button("cmdGP2TM", "frmeOne", "->");
    Control& lblGrid = form.label("lblGrid", "frmeOne", "변환하기");
    Control& cmdTM2GP = form.button("cmdTM2GP", "frmeOne", "<-");

    Control& Frame3 = form.frame("Frame3", "frmeOne", "직교좌표 (사용자 타원체)");
    Control& txtX = form.textBox("txtX", "Frame3", "X");
    Control& txtY = form.textBox("txtY", "Frame3", "Y");
    Control& txtH = form.textBox("txtH", "Frame3", "표고");
    Control& txtGeoid = form.textBox("txtGeoid", "Frame3", "지오이드고");
    Control& txtTH = form.textBox("txtTH", "Frame3", "타원체고");

    Control& cmdTM2UTM = form.button("cmdTM2UTM", "frmeOne", "->");
    Control& lblUtm = form.label("lblUtm", "frmeOne", "변환하기");
    Control& cmdUTM2TM = form.button("cmdUTM2TM", "frmeOne", "<-");

    Control& Frame13 = form.frame("Frame13", "frmeOne", "UTM 좌표");
    Control& txtUX = form.textBox("txtUX", "Frame13", "X");
    Control& txtUY = form.textBox("txtUY", "Frame13", "Y");
    Control& txtUH = form.textBox("txtUH", "Frame13", "표고");

    Control& lblHeights = form.label("lblHeights", "frmeOne", "표고 = 타원체고 - 지오이드고");
    Control& lblGeoid = form.label("lblGeoid", "frmeOne", "지오이드고는 개략치임");

    Control& cmdOneClose = form.button("cmdOneClose", "frmeOne", "닫기");

    [[nodiscard]] AnglePair wgsAngles() const {
        return {optWdeg,
                {&txtWdegPhi, &txtWdegLam, &txtWdegTH},
                optWdms,
                {&txtWdmsPhi, &txtWdmsLam, &txtWdmsTH}};
    }
    [[nodiscard]] AnglePair userAngles() const {
        return {optBdeg,
                {&txtBdegPhi, &txtBdegLam, &txtBdegH},
                optBdms,
                {&txtBdmsPhi, &txtBdmsLam, &txtBdmsH}};
    }
};

}  // namespace kelvo
