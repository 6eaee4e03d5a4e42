#include "batch/check_origins.h"

#include <cmath>
#include <utility>

#include "batch/check_points.h"
#include "common/number_text.h"
#include "geodesy/zones.h"

namespace kelvo {

namespace {

using Kind = FindingKind;

constexpr double kShiftTolerance = 5e-6;  // degrees; origins are typed with five decimals or more
constexpr double kNorthOfJeju = 34.5;

}  // namespace

void CheckedOrigins::afterZone(const TextLine& line, const TransPara& para) {
    zone_.reset();
    if (para.Zone >= TmZone::West && para.Zone <= TmZone::EastSea)
        zone_ = {.line = line, .Lam0 = para.Lam0};
}

void CheckedOrigins::afterTmParameters(const TextLine& line) {
    zone_.reset();
    tmParameters_ = line;
}

void CheckedOrigins::afterUtmOrigin(const TextLine& line, const TransPara& para) {
    utm_ = {.line = line, .Lam0 = para.ULam0};
}

void CheckedOrigins::beforeBlock(System system, const TransPara& para, Findings& findings) {
    if (system == System::Tm) zone_.reset();
    if (system == System::Utm) utm_.reset();
    if (!tmParameters_) return;
    const TextLine line = *std::exchange(tmParameters_, std::nullopt);
    const double beyond = para.Lam0 - std::floor(para.Lam0);
    const bool shifted = std::abs(beyond - kOriginShiftSeconds / 3600) < kShiftTolerance;
    if (shifted && para.AddFlag == Flag::On)
        findings.add(Kind::ShiftedTwice, line,
                     "원점 경도 " + generalText(para.Lam0) +
                         "도에 10.405초가 들어 있는데 다시 더해집니다. add 0을 쓰십시오");
}

void CheckedOrigins::afterPoint(System system, const TextLine& line, const ConvertedPoint& point,
                                Findings& findings) {
    const auto overridden = [&](std::optional<Waiting>& waiting, const char* grid, double Lam0) {
        if (!waiting || waiting->Lam0 == Lam0) return;
        findings.add(Kind::OriginOverridden, waiting->line,
                     std::string(grid) + " 원점 " + generalText(waiting->Lam0) + "도가 " +
                         std::to_string(line.number) + "번째 줄의 점에서 " + generalText(Lam0) +
                         "도로 바뀝니다. 원점은 점마다 경도로 정해집니다");
        waiting.reset();
    };
    if (system != System::Tm) overridden(zone_, "TM", point.Lam0);
    if (system != System::Utm) overridden(utm_, "UTM", point.ULam0);

    if (saidJeju_ || system == System::Tm) return;
    const Position wgs{.Phi = point.WgsPhi, .Lam = point.WgsLam};
    if (point.Zone < TmZone::Jeju && isOnJeju(wgs)) {
        findings.add(Kind::WrongJeju, line,
                     "제주도의 점인데 zone 5가 아니어서 중부 원점으로 계산되어 X가 50000 m 작게 "
                     "나옵니다");
        saidJeju_ = true;
    } else if (point.Zone == TmZone::Jeju && wgs.Phi > kNorthOfJeju) {
        findings.add(Kind::WrongJeju, line, "zone 5는 제주도의 원점인데 점이 제주도 밖에 있습니다");
        saidJeju_ = true;
    }
}

}  // namespace kelvo
