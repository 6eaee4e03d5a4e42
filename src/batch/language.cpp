#include "batch/language.h"

#include <algorithm>

#include "common/utf8.h"

namespace kelvo {

namespace {

using enum Command;
using Kind = CommandKind;

constexpr std::array kCommandWords{
    CommandWord{"7 para", "7 ", "7PARAMETERS", SevenParameters, Kind::Parameter},
    CommandWord{"7para", "7P", "7PARAMETERS", SevenParameters, Kind::Parameter},
    CommandWord{"1st", "1S", "1STCORRECTION", FirstAdjustment, Kind::Parameter},
    CommandWord{"1", "1 ", "1STCORRECTION", FirstAdjustment, Kind::Parameter},
    CommandWord{"CORRECTION", "CO", "CORRECTION", Correction, Kind::Parameter},
    CommandWord{"NOCORRECTION", "NO", "NOCORRECTION", NoCorrection, Kind::Parameter},
    CommandWord{"zone", "ZO", "ZONE", Zone, Kind::Parameter},
    CommandWord{"add", "AD", "ADD", Add, Kind::Parameter},
    CommandWord{"INPUT", "IN", "INPUT", Input, Kind::AngleForm},
    CommandWord{"OUTPUT", "OU", "OUTPUT", Output, Kind::AngleForm},
    CommandWord{"TM", "TM", "TM", TmPoints, Kind::Points, 3, TmParameters},
    CommandWord{"UTM", "UT", "UTM", UtmPointsOrOrigin, Kind::Points, 4, UtmParameters},
    CommandWord{"WGS", "WG", "WGS", WgsPoints, Kind::Points},
    CommandWord{"UGS", "UG", "UGS", UserPoints, Kind::Points},
    CommandWord{"DIST", "DI", "DISTANCE", Distance, Kind::Distance},
    CommandWord{"end", "EN", "END", End, Kind::End},
};

// The first key that fits is taken, so that one which begins with another would never be reached.
constexpr bool noKeyHidesAnother() {
    for (std::size_t i = 0; i < kCommandWords.size(); ++i)
        for (std::size_t k = i + 1; k < kCommandWords.size(); ++k)
            if (kCommandWords[k].key.starts_with(kCommandWords[i].key)) return false;
    return true;
}
static_assert(noKeyHidesAnother());

constexpr std::array kSevenParameterLines{3, 3, 1};  // shifts, rotations, scale
constexpr std::array kGridLines{2, 2, 2, 1};         // ellipsoid, origin, false origin, scale

bool hasPara(std::string_view keyLine, const CommandWord& word) {
    const auto paraAt = [keyLine](std::size_t character) {
        return middleOf(keyLine, character, kParaWord.size()) == kParaWord;
    };
    return word.paraAt > 0 && (paraAt(word.paraAt) || paraAt(word.paraAt + 1));
}

}  // namespace

std::span<const CommandWord> commandWords() {
    return kCommandWords;
}

std::optional<Command> commandOf(std::string_view keyLine) {
    const auto found =
        std::find_if(kCommandWords.begin(), kCommandWords.end(),
                     [keyLine](const CommandWord& word) { return keyLine.starts_with(word.key); });
    if (found == kCommandWords.end()) return std::nullopt;
    return hasPara(keyLine, *found) ? found->withPara : found->command;
}

std::span<const int> furtherLines(Command command) {
    switch (command) {
        case SevenParameters:
            return kSevenParameterLines;
        case TmParameters:
        case UtmParameters:
            return kGridLines;
        default:
            return {};
    }
}

}  // namespace kelvo
