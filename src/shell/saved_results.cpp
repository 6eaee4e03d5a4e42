#include "shell/saved_results.h"

#include "batch/wording.h"
#include "common/checked_arithmetic.h"
#include "common/fixed_width.h"
#include "geodesy/angle_forms.h"
#include "panels/entry.h"

namespace kelvo {

namespace {

// A box, read by its number from the left.
std::string F(const Control& box, int width, int decimals) {
    return genSub::FormatNum(std::string_view(box.text()), width, decimals);
}

}  // namespace

SavedResults::SavedResults(const MenuControls& menus, const ParameterControls& parameters,
                           const CoordinateControls& coordinates, const ProgramState& state,
                           ResultViewer& viewer, Disk& disk, MessageBoxes& messages)
    : para_(parameters),
      on_(coordinates),
      path_(state.inApplicationFolder("Kelvo.out")),
      viewer_(viewer),
      disk_(disk),
      messages_(messages) {
    menus.mnuPrintBrief.onClick = [this] { mnuPrintBrief_Click(); };
    menus.mnuPrintDetail.onClick = [this] { mnuPrintDetail_Click(); };
    menus.mnuPrintClear.onClick = [this] { mnuPrintClear_Click(); };
    menus.mnuPrintShow.onClick = [this] { mnuPrintShow_Click(); };
}

std::string SavedResults::dms(const Control& box) {
    const double x = strictNumberOf(box);
    const DegreesMinutesSeconds angle = reportedParts(messages_, x, KelvoSub::DegToDmsParts(x));
    return genSub::FormatNum(static_cast<double>(angle.D), 4, 0) + "-" +
           genSub::FormatNum(static_cast<double>(angle.M), 2, 0) + "-" +
           genSub::FormatNum(angle.S, 2, 4);
}

void SavedResults::writeResultBlock(TextWriter& file) {
    // Read one after the other: the first bad box is the one reported.
    const std::string wgsPhi = dms(on_.txtWdegPhi);
    const std::string userPhi = dms(on_.txtBdegPhi);
    file.line("WGS 위도 = " + wgsPhi + "   사용자 위도 = " + userPhi +
              "   사용자 X = " + F(on_.txtX, 9, 5));
    const std::string wgsLam = dms(on_.txtWdegLam);
    const std::string userLam = dms(on_.txtBdegLam);
    file.line("    경도 = " + wgsLam + "          경도 = " + userLam +
              "          Y = " + F(on_.txtY, 9, 5));
    file.line(" 타원체고 = " + F(on_.txtWdegTH, 5, 4) + "          타원체고  = " +
              F(on_.txtBTH, 5, 4) + "          타원체고  = " + F(on_.txtTH, 5, 5));
    file.line("지오이드고= " + F(on_.txtwGeoid, 5, 4) + "         지오이드고 = " +
              F(on_.txtBGeoid, 5, 4) + "         지오이드고 = " + F(on_.txtGeoid, 5, 5));
    file.line("  정표고  = " + F(on_.txtwH, 5, 4) + "              표 고 = " +
              F(on_.txtBdegH, 5, 4) + "              표 고 = " + F(on_.txtH, 5, 4));
}

void SavedResults::mnuPrintBrief_Click() {
    TextWriter file(disk_, path_, WriteMode::Append);
    file.line("");
    writeResultBlock(file);
    file.close();
}

void SavedResults::mnuPrintDetail_Click() {
    const Answer answer =
        messages_.show({.text = "타원체 제원, 매개변수, 투영원점을 포함한 상세한 계산 결과를 " +
                                path_ + "에 추가합니다",
                        .icon = Icon::None,
                        .buttons = Buttons::OkCancel,
                        .title = {}});
    if (answer == Answer::Cancel) return;

    TextWriter file(disk_, path_, WriteMode::Append);
    file.line("");
    file.line("매개변수");
    file.line("   이동    dx, dy, dz =  " + F(para_.txtdX, 6, 3) + F(para_.txtdY, 6, 3) +
              F(para_.txtdZ, 6, 3));
    file.line("   회전(초) ω φ  κ =  " + F(para_.txtOmega, 6, 3) + F(para_.txtPhi, 6, 3) +
              F(para_.txtKappa, 6, 3));
    file.line("   축소확대        ds =  " + F(para_.txtdS, 6, 3) + " x E-6");
    // The ellipsoid goes out as typed (required).
    file.line("타원체 장반경 = " + para_.txta.text() + "   편평도(1/f) = " + para_.txtf.text());
    file.line("투영원점");
    double L = v(para_.txtLam0.text(), messages_);
    if (para_.optAdd.value()) L = finite(kOriginShiftSeconds / 3600 + L);
    file.line("   위도    = " + F(para_.txtPhi0, 5, 9) + "   경도= " + genSub::FormatNum(L, 5, 9));
    file.line("   Xo(North)   = " + F(para_.txtX0, 7, 3) + "  Yo(East) = " + F(para_.txtY0, 7, 3));
    file.line("   축척계수 So = " + F(para_.txtS0, 2, 5));
    file.line("");
    writeResultBlock(file);
    file.close();
}

void SavedResults::mnuPrintClear_Click() {
    const Answer answer = messages_.show({.text = path_ + "에 있는 기존의 계산 결과를 삭제 합니다",
                                          .icon = Icon::None,
                                          .buttons = Buttons::OkCancel,
                                          .title = {}});
    if (answer == Answer::Cancel) return;
    disk_.openForWriting(path_)->close();
}

void SavedResults::mnuPrintShow_Click() {
    viewer_.OpenRichText(path_);
}

}  // namespace kelvo
