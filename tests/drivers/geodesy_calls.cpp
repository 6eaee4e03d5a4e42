// The routines of KelvoSub, by name. An ellipsoid is a, f; a projection X0, Y0, Phi0, Lam0, S0.
#include "batch/wording.h"
#include "common/checked_arithmetic.h"
#include "drivers/routine_bench.h"
#include "geodesy/angle_forms.h"
#include "geodesy/datum_shift.h"
#include "geodesy/ellipsoid.h"
#include "geodesy/geoid.h"
#include "geodesy/transverse_mercator.h"
#include "geodesy/zones.h"

namespace kelvo::testing {

namespace {

using namespace KelvoSub;

Ellipsoid ellipsoid(Arguments& in) {
    const double a = in.number();
    return {.a = a, .f = in.number()};
}

Projection projection(Arguments& in) {
    Projection p;
    p.X0 = in.number();
    p.Y0 = in.number();
    p.Phi0 = in.number();
    p.Lam0 = in.number();
    p.S0 = in.number();
    return p;
}

Geocentric geocentric(Arguments& in) {
    Geocentric point;
    point.X = in.number();
    point.Y = in.number();
    point.Z = in.number();
    return point;
}

Geographic geographic(Arguments& in) {
    Geographic point;
    point.Phi = in.number();
    point.Lam = in.number();
    point.h = in.number();
    return point;
}

void answer(AnswerLine& out, const Geocentric& point) {
    out.number(point.X).number(point.Y).number(point.Z);
}

void answer(AnswerLine& out, const Geographic& point) {
    out.number(point.Phi).number(point.Lam).number(point.h);
}

template <Geocentric (*shiftRoutine)(const DatumShift&, const Geocentric&)>
void shifted(RoutineBench& bench, Arguments& in, AnswerLine& out) {
    answer(out, shiftRoutine(bench.datum.shift, geocentric(in)));
}

void answer(RoutineBench& bench, AnswerLine& out, const Guarded<Geographic>& result) {
    answer(out, reported(bench.messages, result, Remark::Kind::NotGeographic));
}

void answer(RoutineBench& bench, AnswerLine& out, const Guarded<GridPoint>& result) {
    const GridPoint& grid = reported(bench.messages, result, Remark::Kind::NotProjected);
    out.number(grid.X).number(grid.Y);
}

void answer(RoutineBench& bench, AnswerLine& out, const Guarded<Position>& result) {
    const Position& position = reported(bench.messages, result, Remark::Kind::NotUnprojected);
    out.number(position.Phi).number(position.Lam);
}

template <Guarded<Geographic> (*chain)(const DatumShift&, double, double, double)>
void chained(RoutineBench& bench, Arguments& in, AnswerLine& out) {
    const Geographic g = geographic(in);
    answer(bench, out, chain(bench.datum.shift, g.Phi, g.Lam, g.h));
}

template <Guarded<Geographic> (*chain)(const DatumShift&, double, double, double, const Ellipsoid&)>
void chainedWithEllipsoid(RoutineBench& bench, Arguments& in, AnswerLine& out) {
    const Geographic g = geographic(in);
    answer(bench, out, chain(bench.datum.shift, g.Phi, g.Lam, g.h, ellipsoid(in)));
}

void geoToTM(RoutineBench& bench, Arguments& in, AnswerLine& out) {
    const double Phi = in.number();
    const double Lam = in.number();
    const Ellipsoid e = ellipsoid(in);
    answer(bench, out, GeoToTM(Phi, Lam, e, projection(in)));
}

void tmToGeo(RoutineBench& bench, Arguments& in, AnswerLine& out) {
    const double X = in.number();
    const double Y = in.number();
    const Ellipsoid e = ellipsoid(in);
    answer(bench, out, TMToGeo(X, Y, e, projection(in)));
}

void besselToTM(RoutineBench& bench, Arguments& in, AnswerLine& out) {
    const double Phi = in.number();
    const double Lam = in.number();
    int zone = in.integer();
    const auto grid = BesselToTM(Phi, Lam, zone, in.number());
    out.integer(zone);
    answer(bench, out, grid);
}

void tmToBessel(RoutineBench& bench, Arguments& in, AnswerLine& out) {
    const double X = in.number();
    const double Y = in.number();
    int zone = in.integer();
    const auto position = TMToBessel(X, Y, zone, in.number());
    out.integer(zone);
    answer(bench, out, position);
}

void wgsToTM(RoutineBench& bench, Arguments& in, AnswerLine& out) {
    const Geographic g = geographic(in);
    int zone = in.integer();
    const auto grid = WgsToTM(bench.datum.shift, g.Phi, g.Lam, g.h, zone, in.number());
    tell(bench.messages, Remark::Kind::NotGeographic, grid.notGeographic ? 1 : 0);
    tell(bench.messages, Remark::Kind::NotProjected, grid.notProjected ? 1 : 0);
    out.number(grid.value.X).number(grid.value.Y).number(grid.value.h);
}

void tmToWgs(RoutineBench& bench, Arguments& in, AnswerLine& out) {
    const double X = in.number();
    const double Y = in.number();
    const double h = in.number();
    int zone = in.integer();
    const auto wgs = TMToWgs(bench.datum.shift, X, Y, h, zone, in.number());
    tell(bench.messages, Remark::Kind::NotUnprojected, wgs.notProjected ? 1 : 0);
    tell(bench.messages, Remark::Kind::NotGeographic, wgs.notGeographic ? 1 : 0);
    answer(out, wgs.value);
}

void setDatumPara(RoutineBench& bench, Arguments& in, AnswerLine&) {
    double p[7];
    for (double& value : p) value = in.number();
    const auto kind = ShiftKind{static_cast<std::int16_t>(in.integer())};
    SetDatumPara(bench.datum, {p[0], p[1], p[2], p[3], p[4], p[5], p[6]}, kind);
}

void meridianArc(RoutineBench&, Arguments& in, AnswerLine& out) {
    double c[5];
    for (double& value : c) value = in.number();
    out.number(MeridianArc(c[0], c[1], c[2], c[3], c[4], in.number()));
}

void parts(AnswerLine& out, const DegreesMinutesSeconds& dms) {
    out.integer(dms.D).integer(dms.M).number(dms.S);
}

const Routines kRoutines = {
    {"GeoToTM", geoToTM},
    {"TMToGeo", tmToGeo},
    {"MeridianArc", meridianArc},
    {"RadiusW",
     [](RoutineBench&, Arguments& in, AnswerLine& out) {
         const double e2 = in.number();
         out.number(RadiusW(e2, in.number()));
     }},
    {"RadiusN",
     [](RoutineBench&, Arguments& in, AnswerLine& out) {
         const double a = in.number();
         const double e2 = in.number();
         out.number(RadiusN(a, e2, in.number()));
     }},
    {"RadiusM",
     [](RoutineBench&, Arguments& in, AnswerLine& out) {
         const double a = in.number();
         const double e2 = in.number();
         out.number(RadiusM(a, e2, in.number()));
     }},
    {"NormFlat",
     [](RoutineBench&, Arguments& in, AnswerLine& out) {
         double f = in.number();
         NormFlat(f);
         out.number(f);
     }},
    {"BesselToTM", besselToTM},
    {"TMToBessel", tmToBessel},
    {"GeoToXYZ",
     [](RoutineBench&, Arguments& in, AnswerLine& out) {
         const Geographic g = geographic(in);
         answer(out, GeoToXYZ(g.Phi, g.Lam, g.h, ellipsoid(in)));
     }},
    {"XYZToGeo",
     [](RoutineBench& bench, Arguments& in, AnswerLine& out) {
         const Geocentric point = geocentric(in);
         answer(bench, out, XYZToGeo(point, ellipsoid(in)));
     }},
    {"SetDatumPara", setDatumPara},
    {"BursaForward", shifted<BursaForward>},
    {"BursaInverse", shifted<BursaInverse>},
    {"MolodForward", shifted<MolodForward>},
    {"MolodInverse", shifted<MolodInverse>},
    {"ShiftForward", shifted<ShiftForward>},
    {"ShiftInverse", shifted<ShiftInverse>},
    {"WgsToXYZ",
     [](RoutineBench&, Arguments& in, AnswerLine& out) {
         const Geographic g = geographic(in);
         answer(out, WgsToXYZ(g.Phi, g.Lam, g.h));
     }},
    {"BesselToXYZ",
     [](RoutineBench&, Arguments& in, AnswerLine& out) {
         const Geographic g = geographic(in);
         answer(out, BesselToXYZ(g.Phi, g.Lam, g.h));
     }},
    {"XYZToWgs", [](RoutineBench& bench, Arguments& in,
                    AnswerLine& out) { answer(bench, out, XYZToWgs(geocentric(in))); }},
    {"XYZToBessel", [](RoutineBench& bench, Arguments& in,
                       AnswerLine& out) { answer(bench, out, XYZToBessel(geocentric(in))); }},
    {"WgsToBessel", chained<WgsToBessel>},
    {"BesselToWgs", chained<BesselToWgs>},
    {"WgsToUser", chainedWithEllipsoid<WgsToUser>},
    {"UserToWgs", chainedWithEllipsoid<UserToWgs>},
    {"WgsToTM", wgsToTM},
    {"TMToWgs", tmToWgs},
    {"GeoidHeight",
     [](RoutineBench& bench, Arguments& in, AnswerLine& out) {
         const double Phi = in.number();
         out.number(GeoidHeight(bench.datum.geoid, Phi, in.number()));
     }},
    {"GeoidHeightBessel",
     [](RoutineBench& bench, Arguments& in, AnswerLine& out) {
         const double Phi = in.number();
         out.number(GeoidHeightBessel(bench.datum.geoid, Phi, in.number()));
     }},
    {"SplitDeg",
     [](RoutineBench& bench, Arguments& in, AnswerLine& out) {
         const double x = in.number();
         parts(out, reportedParts(bench.messages, x, SplitDeg(x)));
     }},
    {"ParseDms",
     [](RoutineBench& bench, Arguments& in, AnswerLine& out) {
         const double x = in.number();
         out.number(reportedDegrees(bench.messages, x, ParseDms(x)));
     }},
    {"DmsToDeg",
     [](RoutineBench& bench, Arguments& in, AnswerLine& out) {
         const double x = in.number();
         out.number(reportedDegrees(bench.messages, x, DmsToDeg(x)));
     }},
    {"DegToDms",
     [](RoutineBench&, Arguments& in, AnswerLine& out) { out.number(DegToDms(in.number())); }},
    {"DegToDmsParts",
     [](RoutineBench& bench, Arguments& in, AnswerLine& out) {
         const double x = in.number();
         parts(out, reportedParts(bench.messages, x, DegToDmsParts(x)));
     }},
    {"AngleText",
     [](RoutineBench&, Arguments& in, AnswerLine& out) {
         const double x = in.number();
         out.text(AngleText(x, AngleForm{in.integer()}));
     }},
    {"ArcSecLen",
     [](RoutineBench& bench, Arguments& in, AnswerLine& out) {
         const double Phi = in.number();
         const ArcSecLengths second = ArcSecLen(Phi, in.number());
         tell(bench.messages, Remark::Kind::NotProjected, second.unprojected);
         out.number(finite(second.MPhi)).number(finite(second.MLam));
     }},
    {"chkZone",
     [](RoutineBench&, Arguments& in, AnswerLine& out) {
         const double lam = in.number();
         auto Zone = TmZone{static_cast<std::int16_t>(in.integer())};
         double Lam0 = in.number();
         chkZone(lam, Zone, Lam0);
         out.integer(static_cast<std::int16_t>(Zone)).number(Lam0);
     }},
    {"chkUZone",
     [](RoutineBench&, Arguments& in, AnswerLine& out) {
         const double lam = in.number();
         auto UZone = UtmZone{static_cast<std::int16_t>(in.integer())};
         double ULam0 = in.number();
         chkUZone(lam, UZone, ULam0);
         out.integer(static_cast<std::int16_t>(UZone)).number(ULam0);
     }},
};

}  // namespace

const Routines& geodesyRoutines() {
    return kRoutines;
}

}  // namespace kelvo::testing
