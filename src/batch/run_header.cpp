#include "batch/run_header.h"

#include "batch/corr_file.h"
#include "common/fixed_width.h"
#include "geodesy/zones.h"

namespace kelvo {

namespace {

using genSub::FormatNum;

std::string_view inputFormText(AngleForm AngleIn) {
    return AngleIn == AngleForm::Degrees ? " deg 형태 (예 128.426667)     "
                                         : " ddd.mmssss 형태 (예 128.25361253)     ";
}

std::string_view outputFormText(AngleForm AngleOut) {
    switch (AngleOut) {
        case AngleForm::Degrees:
            return " deg 형태 (예 128.426667)     ";
        case AngleForm::Blanks:
            return " ddd mm ss.ss 형태 (예 128 25 36.1253) ";
        case AngleForm::Hyphens:
            return " ddd-mm-ss.ss 형태 (예 128-25-36.1253)     ";
        case AngleForm::Dms:
            return " ddd.mmssss 형태 (예 128.25361253)     ";
    }
    return "";
}

void writeRunHeader(TextWriter& out, AngleForm AngleIn, AngleForm AngleOut, const TransPara& p) {
    const double added = p.AddFlag == Flag::On ? kOriginShiftSeconds : 0;
    out.line("WGS -> GP 변환하는 파라미터");
    out.line("     dx  = " + FormatNum(p.dX, 5, 3) + "     dy  = " + FormatNum(p.dY, 5, 3) +
             "       dz  = " + FormatNum(p.dZ, 5, 3));
    out.line("  Omega  = " + FormatNum(p.Omega, 5, 3) + "    Phi  = " + FormatNum(p.Phi, 5, 3) +
             "    Kappa  = " + FormatNum(p.Kappa, 5, 3));
    out.line("     ds  = " + FormatNum(p.dS, 3, 5));
    out.line("");
    out.line("1 차 조정량 WGS -> GP후 GP위도에 dphi초가 가산됨, 경도도 같고, 높이는 m 단위임");
    out.line("    dphi = " + FormatNum(p.dPhi, 3, 5) + "   dlam  = " + FormatNum(p.dLam, 3, 5) +
             "       dh  = " + FormatNum(p.dH, 3, 5));
    out.line("    ");
    out.line(std::string("기존점에 의한 2차 보정") +
             (p.CorrFlag == Flag::On ? " - 보정함" : " - 보정 안함"));
    out.line("");
    out.line("경위도 -> 직교좌료로 변환하는 파라미터");  // required, as it is spelt
    out.line("     장반경 = " + FormatNum(p.a, 8, 4) + "    편평도 = 1/" + FormatNum(p.f, 3, 8));
    out.line("   원점위도 = " + FormatNum(p.Phi0, 3, 5) +
             "      원점경도 = " + FormatNum(p.Lam0, 3, 5));
    out.line("   원점 X   = " + FormatNum(p.X0, 7, 1) +
             "      원점 Y   = " + FormatNum(p.Y0, 7, 1));
    out.line(" 축척계수 S = " + FormatNum(p.S0, 2, 6));
    out.line(" 경도에가산 = " + FormatNum(added, 3, 3) + "초");
    out.line("");
    out.line("각도입력형태 = " + std::string(inputFormText(AngleIn)));
    out.line("");
    out.line("");
    out.line("각도출력형태 = " + std::string(outputFormText(AngleOut)));
    out.line("");
    out.line("");
}

}  // namespace

void PrintRunHeader(ConversionState& state, const RunFiles& files, AngleForm AngleIn,
                    AngleForm AngleOut, const TransPara& para, Disk& disk, MessageBoxes& messages) {
    writeRunHeader(files.out, AngleIn, AngleOut, para);
    KelvoSub::SetDatumPara(state.datum, shiftOf(para), para.Kind);
    if (para.CorrFlag == Flag::Off) return;
    ReadCorrFile(state.known, files.CorPath, state.fields, disk, messages);
    CorrStatistics(state, files, AngleOut, para, messages);
}

}  // namespace kelvo
