#include "panels/one_point_panel.h"

#include <array>
#include <utility>

#include "batch/detail_report.h"
#include "batch/run_batch.h"
#include "batch/run_header.h"
#include "batch/wording.h"
#include "common/application_folder.h"
#include "common/checked_arithmetic.h"
#include "common/fixed_width.h"
#include "common/number_text.h"
#include "common/run_time_fault.h"

namespace kelvo {

namespace {

// Integer digits and decimals of what is written into the boxes.
struct Format {
    int width;
    int decimals;
};
constexpr Format kAngle{4, 10};
constexpr Format kGrid{10, 5};
constexpr Format kHeight{4, 5};      // in the WGS and user frames
constexpr Format kWideHeight{6, 5};  // in the grid frames, and whatever cmdGP2TM writes

void write(Control& box, double value, Format format) {
    box.setText(genSub::FormatNum(finite(value), format.width, format.decimals));
}

// A height that is handed on as a text: read as far as it is a number.
void writeHeightText(Control& box, const std::string& text, Format format) {
    box.setText(genSub::FormatNum(std::string_view(text), format.width, format.decimals));
}

void typeInto(const std::array<Control*, 3>& boxes, const std::array<Control*, 3>& others) {
    for (Control* box : boxes) box->setEnabled(true);
    for (Control* box : others) box->setEnabled(false);
}

// What a box holds goes wrong: the fault names it.
template <class Compute>
auto ofBox(const Control& box, Compute compute) {
    try {
        return compute();
    } catch (RuntimeFault& fault) {
        fault.addPlace(box.fullLabel());
        throw;
    }
}

Ellipsoid ellipsoidOf(BoxReader& read, const Control& axis, const Control& inverseFlattening) {
    const double a = read(axis);
    const double inverse = read(inverseFlattening);
    return {.a = a, .f = ofBox(inverseFlattening, [inverse] { return quotient(1.0, inverse); })};
}

}  // namespace

// The two files that stay open for the length of a click of a datum arrow.
struct OnePointPanel::Files {
    // Fault 55 where one of them leads to the data file or the known points.
    Files(Disk& disk, const ProgramState& state, const std::array<std::string, 2>& written)
        : out((requireFilesOfTheirOwn(disk, written,
                                      std::array{state.RecentFiles[1], state.CorPath}),
               disk),
              written[0]),
          det(disk, written[1]),
          run{.out = out, .det = det, .CorPath = state.CorPath} {}
    Files(Disk& disk, const ProgramState& state)
        : Files(disk, state,
                {resultFileOf(state.RecentFiles[1]), state.inApplicationFolder(kDetailFile)}) {}

    void close() {
        det.close();
        out.close();
    }

    TextWriter out;
    TextWriter det;
    RunFiles run;
};

OnePointPanel::OnePointPanel(Form& form, Control& frmeOne, ParameterPanels& parameters,
                             ProgramState& state, Disk& disk, MessageBoxes& messages,
                             std::function<void()> writeCfgFile)
    : on_(form),
      frmeOne_(frmeOne),
      parameters_(parameters),
      para_(parameters.controls()),
      state_(state),
      disk_(disk),
      messages_(messages),
      writeCfgFile_(std::move(writeCfgFile)) {
    const std::array coordinateBoxes{
        &on_.txtWdegPhi, &on_.txtWdegLam, &on_.txtWdegTH,  &on_.txtWdmsPhi, &on_.txtWdmsLam,
        &on_.txtWdmsTH,  &on_.txtwGeoid,  &on_.txtwH,      &on_.txtBdegPhi, &on_.txtBdegLam,
        &on_.txtBdegH,   &on_.txtBdmsPhi, &on_.txtBdmsLam, &on_.txtBdmsH,   &on_.txtBGeoid,
        &on_.txtBTH,     &on_.txtX,       &on_.txtY,       &on_.txtH,       &on_.txtGeoid,
        &on_.txtTH,      &on_.txtUX,      &on_.txtUY,      &on_.txtUH};
    for (Control* box : coordinateBoxes) box->setText("0");
    bindReactions();
}

void OnePointPanel::bindReactions() {
    on_.cmdW2B.onClick = [this] { cmdW2B_Click(); };
    on_.cmdB2W.onClick = [this] { cmdB2W_Click(); };
    on_.cmdGP2TM.onClick = [this] { cmdGP2TM_Click(); };
    on_.cmdTM2GP.onClick = [this] { cmdTM2GP_Click(); };
    on_.cmdTM2UTM.onClick = [this] { cmdTM2UTM_Click(); };
    on_.cmdUTM2TM.onClick = [this] { cmdUTM2TM_Click(); };
    on_.optWdeg.onClick = [this] { optWdeg_Click(); };
    on_.optWdms.onClick = [this] { optWdms_Click(); };
    on_.optBdeg.onClick = [this] { optBdeg_Click(); };
    on_.optBdms.onClick = [this] { optBdms_Click(); };
    on_.cmdOneClose.onClick = [this] { cmdOneClose_Click(); };

    // The geoid heights and the heights that are only shown have no such handler.
    const std::array selecting{&on_.txtWdegPhi, &on_.txtWdegLam, &on_.txtWdegTH,  &on_.txtWdmsPhi,
                               &on_.txtWdmsLam, &on_.txtWdmsTH,  &on_.txtBdegPhi, &on_.txtBdegLam,
                               &on_.txtBdegH,   &on_.txtBdmsPhi, &on_.txtBdmsLam, &on_.txtBdmsH,
                               &on_.txtBTH,     &on_.txtX,       &on_.txtY,       &on_.txtH,
                               &on_.txtUX,      &on_.txtUY,      &on_.txtUH};
    for (Control* box : selecting) box->onFocus = [box] { r(*box); };
}

void OnePointPanel::FillDefault() {
    on_.optWdms.switchOn();
    on_.optBdms.switchOn();
    on_.txtGeoid.setEnabled(false);
}

void OnePointPanel::optWdeg_Click() {
    typeInto(on_.wgsAngles().degrees, on_.wgsAngles().dms);
}

void OnePointPanel::optWdms_Click() {
    typeInto(on_.wgsAngles().dms, on_.wgsAngles().degrees);
}

void OnePointPanel::optBdeg_Click() {
    typeInto(on_.userAngles().degrees, on_.userAngles().dms);
}

void OnePointPanel::optBdms_Click() {
    typeInto(on_.userAngles().dms, on_.userAngles().degrees);
}

void OnePointPanel::synchronise(const AnglePair& angles, BoxReader& read) {
    const bool fromDegrees = angles.degreesOption.value();
    const auto& from = fromDegrees ? angles.degrees : angles.dms;
    const auto& to = fromDegrees ? angles.dms : angles.degrees;
    for (std::size_t i = 0; i < 2; ++i) {
        const double given = read(*from[i]);
        const double turned = ofBox(*from[i], [&] {
            return fromDegrees ? KelvoSub::DegToDms(given)
                               : reportedDegrees(messages_, given, KelvoSub::DmsToDeg(given));
        });
        to[i]->setText(generalText(turned));
    }
    to[2]->setText(from[2]->text());
}

void OnePointPanel::startDatumClick(Files& files, BoxReader& read, const AnglePair& tail) {
    const ShiftKind kind = para_.optBursa.value() ? ShiftKind::Bursa : ShiftKind::Molodensky;
    const double dX = read(para_.txtdX);
    const double dY = read(para_.txtdY);
    const double dZ = read(para_.txtdZ);
    const double Omega = read(para_.txtOmega);
    const double Phi = read(para_.txtPhi);
    const double Kappa = read(para_.txtKappa);
    const double dS = read(para_.txtdS);
    KelvoSub::SetDatumPara(state_.conversion.datum, {dX, dY, dZ, Omega, Phi, Kappa, dS}, kind);
    synchronise(tail, read);
    if (!state_.conversion.ParaDirty) return;
    parameters_.SaveCfg();
    writeCfgFile_();
    PrintRunHeader(state_.conversion, files.run, AngleForm::Dms, AngleForm::Hyphens, state_.Cfg,
                   disk_, messages_);
    state_.conversion.ParaDirty = false;
}

// By the flag of the stored set, with a row in the detail file under the name that stands in row 1
// of the point table (required).
Correction OnePointPanel::correctionAt(Files& files, const Position& wgs) {
    if (state_.Cfg.CorrFlag == Flag::Off) return {};
    const auto known = state_.conversion.known.inUse();
    const FoundCorrection found = findCorr(known, wgs);
    if (found.failure != NoCorrection::None) throw faultOf(found, known, state_.CorPath);
    const ArcSecLengths second = KelvoSub::ArcSecLen(wgs.Phi, wgs.Lam);
    tell(messages_, Remark::Kind::NotProjected, second.unprojected);
    const double L = lengthInMetres(found.value.DPhi, found.value.DLam, second);
    DetailReport(files.det, AngleForm::Hyphens)
        .correction(state_.conversion.points.row(1).name, found.value, L);
    return found.value;
}

void OnePointPanel::cmdW2B_Click() {
    Files files(disk_, state_);
    BoxReader read(messages_);
    startDatumClick(files, read, on_.wgsAngles());
    const DatumState& datum = state_.conversion.datum;

    const double p = read(on_.txtWdegPhi);
    const double l = read(on_.txtWdegLam);
    const double h = read(on_.txtWdegTH);
    const Ellipsoid user = ellipsoidOf(read, para_.txta, para_.txtf);
    const Geographic shifted = reported(messages_, KelvoSub::WgsToUser(datum.shift, p, l, h, user),
                                        Remark::Kind::NotGeographic);
    double up = finite(read(para_.txtdPhi) / 3600 + shifted.Phi);
    double ul = finite(read(para_.txtdLam) / 3600 + shifted.Lam);
    const double uTH = finite(read(para_.txtdH) + shifted.h);

    const double NW = KelvoSub::GeoidHeight(datum.geoid, p, l);
    const double wH = strictNumberOf(on_.txtWdegTH) - NW;
    const double NB = KelvoSub::GeoidHeightBessel(datum.geoid, up, ul);
    double H = uTH - NB;
    const Correction c = correctionAt(files, {.Phi = p, .Lam = l});
    // The ellipsoidal height stays without the correction (required).
    up = c.DPhi + up;
    ul = c.DLam + ul;
    H = H + c.DH;

    write(on_.txtBdegPhi, up, kAngle);
    write(on_.txtBdegLam, ul, kAngle);
    write(on_.txtBdegH, H, kHeight);
    write(on_.txtBdmsPhi, KelvoSub::DegToDms(finite(up)), kAngle);
    write(on_.txtBdmsLam, KelvoSub::DegToDms(finite(ul)), kAngle);
    write(on_.txtBdmsH, H, kHeight);
    write(on_.txtBGeoid, NB, kHeight);
    write(on_.txtBTH, uTH, kHeight);
    write(on_.txtwGeoid, NW, kHeight);
    write(on_.txtwH, wH, kHeight);
    files.close();
}

void OnePointPanel::cmdB2W_Click() {
    Files files(disk_, state_);
    BoxReader read(messages_);
    startDatumClick(files, read, on_.userAngles());
    const DatumState& datum = state_.conversion.datum;

    const double p = read(on_.txtBdegPhi);
    const double l = read(on_.txtBdegLam);
    const double NB = KelvoSub::GeoidHeightBessel(datum.geoid, p, l);
    const double E = finite(NB + strictNumberOf(on_.txtBdegH));
    const Ellipsoid user = ellipsoidOf(read, para_.txta, para_.txtf);
    const Geographic shifted = reported(messages_, KelvoSub::UserToWgs(datum.shift, p, l, E, user),
                                        Remark::Kind::NotGeographic);
    double wp = finite(shifted.Phi - read(para_.txtdPhi) / 3600);
    double wl = finite(shifted.Lam - read(para_.txtdLam) / 3600);
    const double wh = finite(shifted.h - read(para_.txtdH));

    const Correction c = correctionAt(files, {.Phi = wp, .Lam = wl});
    wp = finite(wp - c.DPhi);
    wl = finite(wl - c.DLam);
    const double A = wh - c.DH;
    // The correction goes off the geoid height as well, and so cancels out of the orthometric
    // height (required).
    const double B = KelvoSub::GeoidHeight(datum.geoid, wp, wl) - c.DH;
    const double C = A - B;

    write(on_.txtWdegPhi, wp, kAngle);
    write(on_.txtWdegLam, wl, kAngle);
    write(on_.txtWdegTH, A, kHeight);
    write(on_.txtWdmsPhi, KelvoSub::DegToDms(wp), kAngle);
    write(on_.txtWdmsLam, KelvoSub::DegToDms(wl), kAngle);
    write(on_.txtWdmsTH, A, kHeight);
    write(on_.txtwGeoid, B, kHeight);
    write(on_.txtwH, C, kHeight);
    files.close();
}

double OnePointPanel::shiftedLam0(BoxReader& read) const {
    const double Lam0 = read(para_.txtLam0);
    return para_.optAdd.value() ? kOriginShiftSeconds / 3600 + Lam0 : Lam0;
}

Projection OnePointPanel::tmOrigin(BoxReader& read, double Lam0) const {
    Projection origin;
    origin.X0 = read(para_.txtX0);
    origin.Y0 = read(para_.txtY0);
    origin.Phi0 = read(para_.txtPhi0);
    origin.Lam0 = Lam0;
    origin.S0 = read(para_.txtS0);
    return origin;
}

// The 10.405 seconds never go into the UTM origin.
Projection OnePointPanel::utmOrigin(BoxReader& read) const {
    Projection origin;
    origin.X0 = read(para_.txtUX0);
    origin.Y0 = read(para_.txtUY0);
    origin.Phi0 = read(para_.txtUPhi0);
    origin.Lam0 = read(para_.txtULam0);
    origin.S0 = read(para_.txtUS0);
    return origin;
}

void OnePointPanel::cmdGP2TM_Click() {
    BoxReader read(messages_);
    synchronise(on_.userAngles(), read);
    const std::string H = on_.txtBdegH.text();
    const double p = read(on_.txtBdegPhi);
    const double l = read(on_.txtBdegLam);
    const double NB = KelvoSub::GeoidHeightBessel(state_.conversion.datum.geoid, p, l);
    const double TH = NB + strictNumberOf(on_.txtBdegH);

    parameters_.followZone(l);
    const double Lam0 = shiftedLam0(read);
    const Ellipsoid user = ellipsoidOf(read, para_.txta, para_.txtf);
    const GridPoint grid = reported(messages_, KelvoSub::GeoToTM(p, l, user, tmOrigin(read, Lam0)),
                                    Remark::Kind::NotProjected);

    write(on_.txtX, grid.X, kGrid);
    write(on_.txtY, grid.Y, kGrid);
    writeHeightText(on_.txtH, H, kWideHeight);
    write(on_.txtGeoid, NB, kWideHeight);
    write(on_.txtTH, TH, kWideHeight);
    write(on_.txtBGeoid, NB, kWideHeight);
    write(on_.txtBTH, TH, kWideHeight);
}

// The grid is read with the origin that stands in the boxes.
Position OnePointPanel::positionOfTmBoxes(BoxReader& read) {
    const double Lam0 = shiftedLam0(read);
    const double X = read(on_.txtX);
    const double Y = read(on_.txtY);
    const Ellipsoid user = ellipsoidOf(read, para_.txta, para_.txtf);
    return reported(messages_, KelvoSub::TMToGeo(X, Y, user, tmOrigin(read, Lam0)),
                    Remark::Kind::NotUnprojected);
}

void OnePointPanel::cmdTM2GP_Click() {
    BoxReader read(messages_);
    const Position at = positionOfTmBoxes(read);

    const std::string H = on_.txtH.text();
    const double NB = KelvoSub::GeoidHeightBessel(state_.conversion.datum.geoid, at.Phi, at.Lam);
    const double TH = NB + strictNumberOf(on_.txtH);

    write(on_.txtBdegPhi, at.Phi, kAngle);
    write(on_.txtBdegLam, at.Lam, kAngle);
    writeHeightText(on_.txtBdegH, H, kHeight);
    write(on_.txtBdmsPhi, KelvoSub::DegToDms(at.Phi), kAngle);
    write(on_.txtBdmsLam, KelvoSub::DegToDms(at.Lam), kAngle);
    writeHeightText(on_.txtBdmsH, H, kHeight);
    write(on_.txtBGeoid, NB, kHeight);
    write(on_.txtBTH, TH, kHeight);
    write(on_.txtGeoid, NB, kHeight);
    write(on_.txtTH, TH, kHeight);
}

void OnePointPanel::cmdTM2UTM_Click() {
    BoxReader read(messages_);
    const Position at = positionOfTmBoxes(read);

    parameters_.followUtmZone(at.Lam);
    const Ellipsoid utm = ellipsoidOf(read, para_.txtUa, para_.txtUf);
    const GridPoint grid =
        reported(messages_, KelvoSub::GeoToTM(at.Phi, at.Lam, utm, utmOrigin(read)),
                 Remark::Kind::NotProjected);

    write(on_.txtUX, grid.X, kGrid);
    write(on_.txtUY, grid.Y, kGrid);
    writeHeightText(on_.txtUH, on_.txtH.text(), kWideHeight);
}

void OnePointPanel::cmdUTM2TM_Click() {
    BoxReader read(messages_);
    const double UX = read(on_.txtUX);
    const double UY = read(on_.txtUY);
    const Ellipsoid utm = ellipsoidOf(read, para_.txtUa, para_.txtUf);
    const Position at = reported(messages_, KelvoSub::TMToGeo(UX, UY, utm, utmOrigin(read)),
                                 Remark::Kind::NotUnprojected);

    // Required: the zone goes by the longitude that stands in the user frame, which may be an
    // older point's, and not by the one just computed.
    if (parameters_.followsZone()) parameters_.followZone(read(on_.txtBdegLam));
    const double Lam0 = shiftedLam0(read);
    const Ellipsoid user = ellipsoidOf(read, para_.txta, para_.txtf);
    const GridPoint grid =
        reported(messages_, KelvoSub::GeoToTM(at.Phi, at.Lam, user, tmOrigin(read, Lam0)),
                 Remark::Kind::NotProjected);

    write(on_.txtX, grid.X, kGrid);
    write(on_.txtY, grid.Y, kGrid);
    writeHeightText(on_.txtH, on_.txtUH.text(), kWideHeight);
}

void OnePointPanel::cmdOneClose_Click() {
    parameters_.SaveCfg();
    writeCfgFile_();
    frmeOne_.setVisible(false);
}

}  // namespace kelvo
