#include "batch/result_tables.h"

#include <string>
#include <string_view>

#include "common/fixed_width.h"
#include "common/run_time_fault.h"
#include "geodesy/angle_forms.h"
#include "geodesy/transverse_mercator.h"

namespace kelvo {

namespace {

constexpr std::string_view kGridHeading =
    " 명칭                 X                  Y               표고";

// WGS84 for the last table, its flattening given as it is and not by its inverse.
constexpr Ellipsoid kWgsGridEllipsoid{.a = 6378137.0, .f = 0.0033528106647474805};

// Builds the rows of one table; every cell has its fixed width and nothing stands between.
class Row {
public:
    Row(TextWriter& out, int AngleOut, MessageBoxes& messages)
        : out_(out), form_(AngleOut), messages_(messages) {}

    Row& name(const std::string& name) {
        line_.clear();
        genSub::appendFormatText(line_, name, 10, 0);
        return *this;
    }
    Row& angles(double Phi, double Lam) {
        KelvoSub::appendAngleText(line_, Phi, form_, messages_);
        KelvoSub::appendAngleText(line_, Lam, form_, messages_);
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
    int form_;
    MessageBoxes& messages_;
    std::string line_;
};

}  // namespace

void PrintResultTables(PointTable& points, TextWriter& out, int AngleOut, TransPara& para,
                       MessageBoxes& messages) {
    Row row(out, AngleOut, messages);
    const auto eachPoint = [&points](auto body) {
        for (int i = 1; i <= points.PointCount; ++i) {
            PointRec& point = points.row(i);
            try {
                body(point);
            } catch (RuntimeFault& fault) {
                fault.addPlace("점 " + point.name);
                throw;
            }
        }
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
    TmGrid wgsGrid(
        kWgsGridEllipsoid,
        {.X0 = para.UX0, .Y0 = para.UY0, .Phi0 = para.UPhi0, .Lam0 = para.ULam0, .S0 = para.US0});
    eachPoint([&](PointRec& p) {
        KelvoSub::chkUZone(p.WgsLam, para.UZone, para.ULam0);
        wgsGrid.setCentralMeridian(para.ULam0);
        const GridPoint grid = KelvoSub::GeoToTM(p.WgsPhi, p.WgsLam, wgsGrid, messages);
        p.WgsUtmX = grid.X;
        p.WgsUtmY = grid.Y;
        p.WgsUtmH = p.TmH;
        row.name(p.name).grid(p.WgsUtmX, p.WgsUtmY).height(p.WgsUtmH);
    });
    out.line("");
}

}  // namespace kelvo
