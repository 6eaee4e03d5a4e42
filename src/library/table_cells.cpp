#include "library/table_cells.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>

#include "common/fixed_width.h"

namespace kelvo {

namespace {

// Well below 32,767 degrees, the most that is split into degrees, minutes and seconds.
constexpr double kSurelySplit = 32000;

// What a run does with the cells of a row, without the row.
class Cells {
public:
    Cells& angles(double Phi, double Lam) {
        KelvoSub::appendAngleText(line_, Phi, AngleForm::Degrees);
        KelvoSub::appendAngleText(line_, Lam, AngleForm::Degrees);
        return *this;
    }
    // Whatever the width of a column is, it takes every number but an infinity.
    void lengths(std::initializer_list<double> metres) {
        for (const double length : metres) genSub::appendFormatNum(line_, length, 8, 4);
    }

private:
    std::string line_;
};

template <class Rows>
std::optional<RuntimeFault> faultOf(const Rows& rows) {
    try {
        Cells cells;
        rows(cells);
    } catch (const RuntimeFault& fault) {
        return fault;
    }
    return std::nullopt;
}

}  // namespace

bool isWritable(const ConvertedPoint& p) {
    const std::array angles{p.WgsPhi, p.WgsLam, p.UserPhi, p.UserLam, p.CorrPhi, p.CorrLam};
    if (!std::all_of(angles.begin(), angles.end(),
                     [](double angle) { return std::abs(angle) < kSurelySplit; }))
        return false;
    const std::array lengths{p.WgsH, p.UserH, p.TmX,     p.TmY,     p.TmH,     p.UtmX, p.UtmY,
                             p.UtmH, p.CorrH, p.WgsUtmX, p.WgsUtmY, p.WgsUtmH, p.CorrL};
    return std::all_of(lengths.begin(), lengths.end(),
                       [](double length) { return std::isfinite(length); });
}

std::optional<RuntimeFault> faultOfDetailRow(const ConvertedPoint& p) {
    return faultOf([&p](Cells& cells) {
        cells.angles(p.CorrPhi, p.CorrLam).lengths({p.CorrH, p.CorrL});
    });
}

std::optional<RuntimeFault> faultOfTables(const ConvertedPoint& p) {
    return faultOf([&p](Cells& cells) {
        cells.angles(p.WgsPhi, p.WgsLam).lengths({p.WgsH});
        cells.angles(p.UserPhi, p.UserLam).lengths({p.UserH});
        cells.lengths({p.TmX, p.TmY, p.TmH, p.UtmX, p.UtmY, p.UtmH});
    });
}

std::optional<RuntimeFault> faultOfLastTable(const ConvertedPoint& p) {
    return faultOf([&p](Cells& cells) { cells.lengths({p.WgsUtmX, p.WgsUtmY, p.WgsUtmH}); });
}

void appendAngleCell(std::string& text, double degrees, AngleForm form) {
    if (form == AngleForm::Degrees) {
        genSub::appendBareNum(text, degrees, 8, 10);
        return;
    }
    const std::size_t start = text.size();
    KelvoSub::appendAngleText(text, degrees, form);
    text.erase(start, text.find_first_not_of(' ', start) - start);
}

void appendGridCell(std::string& text, double metres) {
    genSub::appendBareNum(text, metres, 12, 6);
}

void appendHeightCell(std::string& text, double metres) {
    genSub::appendBareNum(text, metres, 8, 4);
}

}  // namespace kelvo
