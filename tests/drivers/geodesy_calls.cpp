// The routines of KelvoSub, by name. An ellipsoid is a, f; a projection X0, Y0, Phi0, Lam0, S0.
#include "drivers/routine_bench.h"
#include "geodesy/angle_forms.h"
#include "geodesy/datum_shift.h"
#include "geodesy/ellipsoid.h"
#include "geodesy/geoid.h"
#include "geodesy/transverse_mercator.h"

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

template <Geographic (*chain)(const DatumShift&, double, double, double, MessageBoxes&)>
void chained(RoutineBench& bench, Arguments& in, AnswerLine& out) {
    const Geographic g = geographic(in);
    answer(out, chain(bench.datum.shift, g.Phi, g.Lam, g.h, bench.messages));
}

template <Geographic (*chain)(const DatumShift&, double, double, double, const Ellipsoid&,
                              MessageBoxes&)>
void chainedWithEllipsoid(RoutineBench& bench, Arguments& in, AnswerLine& out) {
    const Geographic g = geographic(in);
    answer(out, chain(bench.datum.shift, g.Phi, g.Lam, g.h, ellipsoid(in), bench.messages));
}

void geoToTM(RoutineBench& bench, Arguments& in, AnswerLine& out) {
    const double Phi = in.number();
    const double Lam = in.number();
    const Ellipsoid e = ellipsoid(in);
    const GridPoint grid = GeoToTM(Phi, Lam, e, projection(in), bench.messages);
    out.number(grid.X).number(grid.Y);
}

void tmToGeo(RoutineBench& bench, Arguments& in, AnswerLine& out) {
    const double X = in.number();
    const double Y = in.number();
    const Ellipsoid e = ellipsoid(in);
    const Position position = TMToGeo(X, Y, e, projection(in), bench.messages);
    out.number(position.Phi).number(position.Lam);
}

void besselToTM(RoutineBench& bench, Arguments& in, AnswerLine& out) {
    const double Phi = in.number();
    const double Lam = in.number();
    int zone = in.integer();
    const GridPoint grid = BesselToTM(Phi, Lam, zone, in.number(), bench.messages);
    out.integer(zone).number(grid.X).number(grid.Y);
}

void tmToBessel(RoutineBench& bench, Arguments& in, AnswerLine& out) {
    const double X = in.number();
    const double Y = in.number();
    int zone = in.integer();
    const Position position = TMToBessel(X, Y, zone, in.number(), bench.messages);
    out.integer(zone).number(position.Phi).number(position.Lam);
}

void wgsToTM(RoutineBench& bench, Arguments& in, AnswerLine& out) {
    const Geographic g = geographic(in);
    int zone = in.integer();
    const GridHeight grid =
        WgsToTM(bench.datum.shift, g.Phi, g.Lam, g.h, zone, in.number(), bench.messages);
    out.number(grid.X).number(grid.Y).number(grid.h);
}

void tmToWgs(RoutineBench& bench, Arguments& in, AnswerLine& out) {
    const double X = in.number();
    const double Y = in.number();
    const double h = in.number();
    int zone = in.integer();
    const Geographic g = TMToWgs(bench.datum.shift, X, Y, h, zone, in.number(), bench.messages);
    answer(out, g);
}

void setDatumPara(RoutineBench& bench, Arguments& in, AnswerLine&) {
    double p[7];
    for (double& value : p) value = in.number();
    SetDatumPara(bench.datum, p[0], p[1], p[2], p[3], p[4], p[5], p[6], in.integer());
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
         answer(out, XYZToGeo(point, ellipsoid(in), bench.messages));
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
                    AnswerLine& out) { answer(out, XYZToWgs(geocentric(in), bench.messages)); }},
    {"XYZToBessel",
     [](RoutineBench& bench, Arguments& in, AnswerLine& out) {
         answer(out, XYZToBessel(geocentric(in), bench.messages));
     }},
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
    {"SplitDeg", [](RoutineBench& bench, Arguments& in,
                    AnswerLine& out) { parts(out, SplitDeg(in.number(), bench.messages)); }},
    {"ParseDms", [](RoutineBench& bench, Arguments& in,
                    AnswerLine& out) { out.number(ParseDms(in.number(), bench.messages)); }},
    {"DmsToDeg", [](RoutineBench& bench, Arguments& in,
                    AnswerLine& out) { out.number(DmsToDeg(in.number(), bench.messages)); }},
    {"DegToDms", [](RoutineBench& bench, Arguments& in,
                    AnswerLine& out) { out.number(DegToDms(in.number(), bench.messages)); }},
    {"DegToDmsParts",
     [](RoutineBench& bench, Arguments& in, AnswerLine& out) {
         parts(out, DegToDmsParts(in.number(), bench.messages));
     }},
    {"AngleText",
     [](RoutineBench& bench, Arguments& in, AnswerLine& out) {
         const double x = in.number();
         out.text(AngleText(x, in.integer(), bench.messages));
     }},
    {"ArcSecLen",
     [](RoutineBench& bench, Arguments& in, AnswerLine& out) {
         const double Phi = in.number();
         const ArcSecLengths second = ArcSecLen(Phi, in.number(), bench.messages);
         out.number(second.MPhi).number(second.MLam);
     }},
    {"chkZone",
     [](RoutineBench&, Arguments& in, AnswerLine& out) {
         const double lam = in.number();
         auto Zone = static_cast<std::int16_t>(in.integer());
         double Lam0 = in.number();
         chkZone(lam, Zone, Lam0);
         out.integer(Zone).number(Lam0);
     }},
    {"chkUZone",
     [](RoutineBench&, Arguments& in, AnswerLine& out) {
         const double lam = in.number();
         auto UZone = static_cast<std::int16_t>(in.integer());
         double ULam0 = in.number();
         chkUZone(lam, UZone, ULam0);
         out.integer(UZone).number(ULam0);
     }},
};

}  // namespace

const Routines& geodesyRoutines() {
    return kRoutines;
}

}  // namespace kelvo::testing
