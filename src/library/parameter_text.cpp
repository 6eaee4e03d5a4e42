#include "library/parameter_text.h"

#include "batch/parameter_commands.h"
#include "batch/run_defaults.h"
#include "common/checked_arithmetic.h"
#include "common/letter_case.h"
#include "common/number_text.h"
#include "common/run_time_fault.h"
#include "library/bad_definition.h"

namespace kelvo {

namespace {

// From the line of a block's command to that of its ellipsoid and to that of its scale.
constexpr long kToEllipsoid = 1;
constexpr long kToScale = 4;

constexpr int kKeyFields = 2;
constexpr int kMostFields = 10;

class ParameterText {
public:
    ParameterText(std::string_view text, const std::string& name) : rest_(text), name_(name) {}

    ParametersOfText read() {
        while (nextLine()) carryOutLine();
        return result_;
    }

private:
    [[noreturn]] void refuse(long line, const std::string& reason) const {
        throw BadDefinition(name_, line, reason);
    }
    [[noreturn]] void refuse(const std::string& reason) const { refuse(line_, reason); }

    bool nextLine() {
        if (rest_.empty()) return false;
        const std::size_t end = rest_.find_first_of("\r\n");
        fields_.LineBuf.assign(rest_.substr(0, end));
        const std::size_t length = end == std::string_view::npos
                                       ? rest_.size()
                                       : end + (rest_.substr(end, 2) == "\r\n" ? 2 : 1);
        rest_.remove_prefix(length);
        ++line_;
        return true;
    }

    // Fields first to last of the line in hand are numbers.
    void requireNumbers(int first, int last) {
        genSub::ParseFields(fields_, last);
        for (int n = first; n <= last; ++n) {
            if (fields_.FieldStr(n).empty())
                refuse("값이 모자랍니다. " + std::to_string(last - first + 1) + "개 있어야 합니다");
            try {
                static_cast<void>(strictNumber(fields_.FieldStr(n)));
            } catch (const RuntimeFault& fault) {
                refuse(fault.text());
            }
        }
    }

    void carryOutLine() {
        genSub::ParseFields(fields_, kMostFields);
        const std::string& first = fields_.FieldStr(1);
        if (first.empty() || first.front() == '*') return;
        const std::string word = first;
        const auto command = commandOf(upperCased(genSub::JoinFields(fields_, 1, kKeyFields)));
        if (!command) refuse("알 수 없는 줄입니다 (" + word.substr(0, 40) + ")");
        switch (*command) {
            case Command::Input:
            case Command::Output:
            case Command::TmPoints:
            case Command::WgsPoints:
            case Command::UserPoints:
            case Command::Distance:
            case Command::End:
                refuseCommand(word);
            case Command::UtmPointsOrOrigin:
                return selectOrigin(word);
            case Command::Zone:
                requireNumbers(2, 2);
                requireZone();
                break;
            case Command::Add:
                requireNumbers(2, 2);
                break;
            case Command::FirstAdjustment:
                requireNumbers(2, 4);
                break;
            default:
                break;
        }
        change(*command);
    }

    [[noreturn]] void refuseCommand(const std::string& word) const {
        refuse("여기에는 파라미터를 바꾸는 줄만 쓸 수 있습니다 (" + word.substr(0, 40) + ")");
    }

    // A line with coordinates is a point, as in a run.
    void selectOrigin(const std::string& word) {
        genSub::ParseFields(fields_, 4);
        if (fields_.FieldNum(3) != 0 || fields_.FieldNum(4) != 0) refuseCommand(word);
        requireNumbers(2, 2);
        if (!selectUtmOrigin(result_.para, fields_.FieldNum(2)))
            refuse("UTM 원점은 123 또는 129입니다 (" + fields_.FieldStr(2) + ")");
    }

    // The field as a single is 0 for a number that is too large for one.
    void requireZone() const {
        try {
            static_cast<void>(roundedInteger16(fields_.FieldNum(2)));
        } catch (const RuntimeFault& fault) {
            refuse(fault.text());
        }
    }

    void change(Command command) {
        const long commandLine = line_;
        const std::span<const int> numbers = furtherLines(command);
        std::size_t further = 0;
        ParameterLines lines{
            .fields = fields_, .readLine = [&] {
                if (!nextLine())
                    refuse(commandLine, "파라미터가 끝까지 있지 않습니다. 이 줄 다음에 " +
                                            std::to_string(numbers.size()) + "줄이 있어야 합니다");
                requireNumbers(1, numbers[further++]);
            }};
        static_cast<void>(changeParameters(result_.para, command, lines));
        if (command == Command::Correction) result_.correctionLine = commandLine;
        if (command == Command::TmParameters)
            requireGrid(commandLine, userEllipsoidOf(result_.para), result_.para.S0);
        if (command == Command::UtmParameters)
            requireGrid(commandLine, utmEllipsoidOf(result_.para), result_.para.US0);
    }

    void requireGrid(long commandLine, const Ellipsoid& ellipsoid, double S0) const {
        if (!(ellipsoid.a > 0 && ellipsoid.f > 0))
            refuse(commandLine + kToEllipsoid, "타원체의 장반경과 편평도는 0보다 커야 합니다");
        if (!(S0 > 0)) refuse(commandLine + kToScale, "축척계수는 0보다 커야 합니다");
    }

    std::string_view rest_;
    const std::string& name_;
    long line_ = 0;
    FieldStore fields_;
    ParametersOfText result_{.para = runDefaults()};
};

}  // namespace

ParametersOfText parametersOf(std::string_view text, const std::string& name) {
    return ParameterText(text, name).read();
}

}  // namespace kelvo
