#include "batch/result_tables.h"

#include <string>
#include <string_view>

#include "batch/wording.h"
#include "common/fixed_width.h"
#include "common/run_time_fault.h"
#include "conversion/converter.h"

namespace kelvo {

namespace {

constexpr std::string_view kGridHeading =
    " 명칭                 X                  Y               표고";

// "타윈체" and "직교좌표" in the titles are required as they are spelt.
// Builds the rows of one table; every cell has its fixed width and nothing stands between.
class Row {
public:
    Row(TextWriter& out, AngleForm AngleOut) : out_(out), form_(AngleOut) {}

    Row& name(const std::string& name) {
        line_.clear();
        genSub::appendFormatText(line_, name, 10, genSub::Align::Left);
        return *this;
    }
    Row& angles(double Phi, double Lam) {
        KelvoSub::appendAngleText(line_, Phi, form_);
        KelvoSub::appendAngleText(line_, Lam, form_);
        return *this;
    }
    Row& grid(double X, double Y) {
        genSub::appendFormatNum(line_, X, 12, 6);
        genSub::appendFormatNum(line_, Y, 12, 6);
        return *this;
    }
    void height(double h) {
        genSub::appendFormatNum(line_, h, 8, 4);
        out_.line(line_);
    }

private:
    TextWriter& out_;
    AngleForm form_;
    std::string line_;
};

}  // namespace

void PrintResultTables(PointTable& points, TextWriter& out, AngleForm AngleOut, TransPara& para,
                       MessageBoxes& messages, int& rowInHand) {
    Row row(out, AngleOut);
    rowInHand = 0;
    const auto eachPoint = [&points, &rowInHand](auto body) {
        for (int i = 1; i <= points.PointCount; ++i) {
            rowInHand = i;
            PointRec& point = points.row(i);
            try {
                body(point);
            } catch (RuntimeFault& fault) {
                fault.addPlace("점 " + point.name);
                throw;
            }
        }
        rowInHand = 0;
    };

    out.line("WGS 타윈체 경위도 및 타원체고");
    out.line(" 명칭               위도               경도          타원체고  ");
    eachPoint(
        [&row](const PointRec& p) { row.name(p.name).angles(p.WgsPhi, p.WgsLam).height(p.WgsH); });

    out.line("");
    out.line("사용자 타윈체 경위도 및 표고");
    out.line(" 명칭               위도               경도              표고");
    eachPoint([&row](const PointRec& p) {
        row.name(p.name).angles(p.UserPhi, p.UserLam).height(p.UserH);
    });

    out.line("");
    out.line("사용자 타윈체 직교좌표 및 표고 (TM) (사용자 타원체 경위도 -> 사용자 타원체 TM)");
    out.line(kGridHeading);
    eachPoint([&row](const PointRec& p) { row.name(p.name).grid(p.TmX, p.TmY).height(p.TmH); });

    out.line("");
    out.line("");
    out.line("사용자 타윈체 직교좌표 및 표고 (UTM) (사용자 타원체 경위도 -> 사용자 타원체 UTM)");
    out.line(kGridHeading);
    eachPoint([&row](const PointRec& p) { row.name(p.name).grid(p.UtmX, p.UtmY).height(p.UtmH); });

    out.line("");
    out.line("");
    out.line("WGS 타윈체 직교좌표 및 표고 (WGS 경위도 -> WGS 타원체 UTM)");
    out.line(kGridHeading);
    const WgsUtmGrid wgsGrid(utmOriginOf(para));
    eachPoint([&](PointRec& p) {
        const auto result = wgsGrid.at({.Phi = p.WgsPhi, .Lam = p.WgsLam}, para.UZone, para.ULam0);
        const GridPoint& grid = reported(messages, result, Remark::Kind::NotProjected);
        p.WgsUtmX = grid.X;
        p.WgsUtmY = grid.Y;
        p.WgsUtmH = p.TmH;
        row.name(p.name).grid(p.WgsUtmX, p.WgsUtmY).height(p.WgsUtmH);
    });
    out.line("");
}

}  // namespace kelvo
