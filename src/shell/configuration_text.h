// The form of kelvo.cfg. Lines: the editor; 27 numbers in the order of TransPara, read as a stream
// separated by blanks, commas or line ends; AddFlag and CorrFlag; then at most five paths.
//
// A path or editor that holds a comma, or begins with a blank or a double quote, stands in double
// quotes; one with a comma and a quote can't and stands bare. One that the code page can't hold
// stands as a locator ("file://...").
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "batch/trans_para.h"
#include "common/fields.h"
#include "common/text_file.h"

namespace kelvo {

inline constexpr std::size_t kMostRecentFiles = 5;

// A number of the parameter set, and whether its line of the file ends after it.
struct StoredNumber {
    std::variant<double TransPara::*, ShiftKind TransPara::*, TmZone TransPara::*,
                 UtmZone TransPara::*>
        field;
    bool lineEnds = false;
};

inline constexpr std::array<StoredNumber, 27> kStoredNumbers{{
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

// The value as it stands in the file.
[[nodiscard]] std::string storedText(const TransPara& Cfg, const StoredNumber& stored);

// Reads everything in front of the paths; what was read before a fault stands. The line of the
// flags is read by way of the fields. Faults: 6 and 13 for a number, 62 where the file ends.
void readParameters(TextReader& file, TransPara& Cfg, FieldStore& fields);

// The next path, or a fault as TextReader::readTextItem.
[[nodiscard]] std::string readPath(TextReader& file);

// The parameters as the file has them; `flagGap` is the text item between the two flags.
[[nodiscard]] std::string parameterLines(const TransPara& Cfg, std::string_view flagGap);

// A path as an item of its own line, line end included.
[[nodiscard]] std::string pathLine(std::string_view path);

}  // namespace kelvo
