#include "shell/configuration.h"

#include <array>
#include <string>
#include <string_view>
#include <variant>

#include "batch/sample_data.h"
#include "common/checked_arithmetic.h"
#include "common/code_page.h"
#include "common/number_text.h"
#include "common/paths.h"
#include "common/text_constants.h"
#include "common/text_file.h"

namespace kelvo {

namespace {

constexpr std::size_t kZone = 14;  // columns
constexpr std::size_t kMostRecent = 5;

// A number of the parameter set, and whether its line of the file ends after it.
struct StoredNumber {
    std::variant<double TransPara::*, ShiftKind TransPara::*, TmZone TransPara::*,
                 UtmZone TransPara::*>
        field;
    bool lineEnds = false;
};

constexpr std::array<StoredNumber, 27> kNumbers{{
    {&TransPara::dX},          {&TransPara::dY},         {&TransPara::dZ, true},
    {&TransPara::Omega},       {&TransPara::Phi},        {&TransPara::Kappa, true},
    {&TransPara::dS, true},    {&TransPara::Kind, true}, {&TransPara::dPhi},
    {&TransPara::dLam},        {&TransPara::dH, true},   {&TransPara::a},
    {&TransPara::f, true},     {&TransPara::Zone, true}, {&TransPara::Phi0},
    {&TransPara::Lam0, true},  {&TransPara::X0},         {&TransPara::Y0, true},
    {&TransPara::S0, true},    {&TransPara::Ua},         {&TransPara::Uf, true},
    {&TransPara::UZone, true}, {&TransPara::UPhi0},      {&TransPara::ULam0, true},
    {&TransPara::UX0},         {&TransPara::UY0, true},  {&TransPara::US0, true},
}};

double numberOf(double value) {
    return value;
}
template <class Named>
double numberOf(Named value) {
    return static_cast<std::int16_t>(value);
}
void assign(double& field, double value) {
    field = value;
}
// Any 16-bit number, also one without a name.
template <class Named>
void assign(Named& field, double value) {
    field = Named{roundedInteger16(value)};
}

// One line of items, each at the start of a zone.
class ZonedLine {
public:
    void text(std::string_view item) {
        if (!line_.empty()) line_.resize((line_.size() / kZone + 1) * kZone, ' ');
        line_ += item;
    }
    void number(double value) { text((value < 0 ? "" : " ") + generalTextInFile(value) + " "); }
    [[nodiscard]] const std::string& line() const { return line_; }

private:
    std::string line_;
};

void readParameters(TextReader& file, ProgramState& state) {
    TransPara& Cfg = state.Cfg;
    file.readTextItem(Cfg.Editor);
    for (const StoredNumber& stored : kNumbers) {
        const double value = file.readNumber();
        std::visit([&](auto field) { assign(Cfg.*field, value); }, stored.field);
    }
    FieldStore& fields = state.conversion.fields;
    file.readLine(fields.LineBuf);
    genSub::ParseFields(fields, 2);
    assign(Cfg.AddFlag, double{fields.FieldSng(1)});
    assign(Cfg.CorrFlag, double{fields.FieldSng(2)});
}

void readRecentFiles(TextReader& file, ProgramState& state, Disk& disk, int& count) {
    std::string item;
    while (!file.atEnd()) {
        ++count;
        file.readTextItem(item);
        if (genSub::FileExists(disk, item) == genSub::kFileIsMissing) continue;
        if (count > static_cast<int>(kMostRecent)) raise(Fault::Subscript);
        state.RecentFiles[static_cast<std::size_t>(count)] = item;
    }
}

// The whole file as a text; `flagGap` is the text item between the two flags.
std::string configurationText(const TransPara& Cfg, std::string_view flagGap) {
    std::string text = Cfg.Editor + std::string(kLineEnd);
    ZonedLine line;
    for (const StoredNumber& stored : kNumbers) {
        std::visit([&](auto field) { line.number(numberOf(Cfg.*field)); }, stored.field);
        if (!stored.lineEnds) continue;
        text.append(line.line()).append(kLineEnd);
        line = {};
    }
    line.number(numberOf(Cfg.AddFlag));
    line.text(flagGap);
    line.number(numberOf(Cfg.CorrFlag));
    return text.append(line.line()).append(kLineEnd);
}

void writeFirstConfiguration(ProgramState& state, Disk& disk) {
    const std::string sample =
        state.inApplicationFolder(std::string("data") + kPathSeparator + "test.dat");
    WriteSampleData(disk, sample);
    fillFirstStart(state.Cfg);
    std::string text = configurationText(state.Cfg, "    ");
    text.append(sample).append(kLineEnd);
    disk.replace(state.CfgPath, encodeCodePage(text));
}

}  // namespace

void fillFirstStart(TransPara& Cfg) {
    Cfg.Editor = kFileNamesIgnoreCase ? "Notepad.exe" : "xdg-open";
    setShift(Cfg, kRecommendedShift);
    Cfg.Kind = ShiftKind{0};  // required: what the panel shows as Bursa
    setUserEllipsoid(Cfg, kBesselOfParameters);
    Cfg.Zone = TmZone::Centre;
    setTmOrigin(Cfg, originOf(UtmZone::East));
    setUtmEllipsoid(Cfg, kBesselOfParameters);
    Cfg.UZone = UtmZone::East;
    Cfg.AddFlag = Flag::On;
    Cfg.CorrFlag = Flag::Off;
}

int readConfiguration(ProgramState& state, Disk& disk) {
    int count = 0;
    for (int recoveries = 0;; ++recoveries) {
        try {
            TextReader file(disk, state.CfgPath);
            readParameters(file, state);
            readRecentFiles(file, state, disk, count);
            return count;
        } catch (const RuntimeFault&) {
            if (recoveries == 2) throw;
        }
        writeFirstConfiguration(state, disk);
        if (recoveries == 1) count = 0;
    }
}

void WriteCfgFile(const ProgramState& state, Disk& disk, MessageBoxes& messages) {
    try {
        std::string text = configurationText(state.Cfg, "   ");
        for (std::size_t i = 1; i <= kMostRecent && !state.RecentFiles[i].empty(); ++i)
            text.append(state.RecentFiles[i]).append(kLineEnd);
        disk.replace(state.CfgPath, encodeCodePage(text));
    } catch (const RuntimeFault&) {
        messages.tell("CFG파일 에러");
    }
}

}  // namespace kelvo
