#include "batch/parameter_commands.h"

#include <utility>

#include "common/checked_arithmetic.h"

namespace kelvo {

namespace {

double number(const ParameterLines& lines, int field) {
    return lines.fields.FieldNum(field);
}

void nextLine(ParameterLines& lines, int maxFields) {
    lines.readLine();
    genSub::ParseFields(lines.fields, maxFields);
}

void sevenParameters(TransPara& para, ParameterLines& lines) {
    ShiftParameters shift;
    nextLine(lines, 3);
    shift.dX = number(lines, 1);
    shift.dY = number(lines, 2);
    shift.dZ = number(lines, 3);
    nextLine(lines, 3);
    shift.Omega = number(lines, 1);
    shift.Phi = number(lines, 2);
    shift.Kappa = number(lines, 3);
    nextLine(lines, 1);
    shift.dS = number(lines, 1);
    setShift(para, shift);
}

// The values are fields 2 to 4, whichever way the line is written: with the word "corr" after
// "1st" everything moves by one place (required).
void firstAdjustment(TransPara& para, ParameterLines& lines) {
    genSub::ParseFields(lines.fields, 4);
    para.dPhi = number(lines, 2);
    para.dLam = number(lines, 3);
    para.dH = number(lines, 4);
}

// A zone number without a name stays as it is, with the origin of the centre.
void zone(TransPara& para, const ParameterLines& lines) {
    para.Zone = TmZone{roundedInteger16(double{lines.fields.FieldSng(2)})};
    setUserEllipsoid(para, kBesselOfParameters);
    setTmOrigin(para, originOf(para.Zone));
}

// The four lines of an ellipsoid and a grid on it, the same for TM and UTM.
std::pair<Ellipsoid, Projection> grid(ParameterLines& lines) {
    Ellipsoid ellipsoid;
    Projection origin;
    nextLine(lines, 2);
    ellipsoid.a = number(lines, 1);
    ellipsoid.f = number(lines, 2);
    nextLine(lines, 2);
    origin.Phi0 = number(lines, 1);
    origin.Lam0 = number(lines, 2);
    nextLine(lines, 2);
    origin.X0 = number(lines, 1);
    origin.Y0 = number(lines, 2);
    nextLine(lines, 1);
    origin.S0 = number(lines, 1);
    return {ellipsoid, origin};
}

}  // namespace

bool changeParameters(TransPara& para, Command command, ParameterLines& lines) {
    switch (command) {
        case Command::SevenParameters:
            sevenParameters(para, lines);
            return true;
        case Command::FirstAdjustment:
            firstAdjustment(para, lines);
            return false;
        case Command::Correction:
            para.CorrFlag = Flag::On;
            return false;
        case Command::NoCorrection:
            para.CorrFlag = Flag::Off;
            return false;
        case Command::Zone:
            zone(para, lines);
            return true;
        case Command::Add:
            para.AddFlag = lines.fields.FieldSng(2) > 0 ? Flag::On : Flag::Off;
            return true;
        case Command::TmParameters: {
            const auto [ellipsoid, origin] = grid(lines);
            setUserEllipsoid(para, ellipsoid);
            setTmOrigin(para, origin);
            para.Zone = TmZone::User;
            return true;
        }
        case Command::UtmParameters: {
            const auto [ellipsoid, origin] = grid(lines);
            setUtmEllipsoid(para, ellipsoid);
            setUtmOrigin(para, origin);
            para.UZone = UtmZone::User;
            return true;
        }
        default:
            return false;
    }
}

bool selectUtmOrigin(TransPara& para, double longitude) {
    for (const UtmZone zone : {UtmZone::West, UtmZone::East}) {
        if (longitude != originOf(zone).Lam0) continue;
        para.UZone = zone;
        para.ULam0 = longitude;
        return true;
    }
    return false;
}

}  // namespace kelvo
