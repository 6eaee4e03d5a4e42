// The command line of kelvo-convert: what each word means, and every sentence about a wrong one.
#include "cli/convert_command_line.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace kelvo {
namespace {

using Words = std::vector<std::string>;
using Wish = ConvertCommandLine::Wish;

ConvertCommandLine convertLine(const Words& words) {
    const auto reading = readConvertCommandLine(words);
    EXPECT_EQ(reading.complaint, "");
    return reading.line.value_or(ConvertCommandLine{});
}

// What is said of the words after "--from wgs".
std::string said(Words words) {
    words.insert(words.begin(), {"--from", "wgs"});
    const auto reading = readConvertCommandLine(words);
    EXPECT_FALSE(reading.line);
    return reading.complaint;
}

TEST(ConvertCommandLine, OnlyFromMustBeGiven) {
    const ConvertCommandLine line = convertLine({"--from", "tm"});
    EXPECT_EQ(line.wish, Wish::Convert);
    EXPECT_EQ(line.from, System::Tm);
    EXPECT_EQ(line.to,
              (std::vector<OutputSystem>{OutputSystem::Wgs, OutputSystem::User, OutputSystem::Tm,
                                         OutputSystem::Utm, OutputSystem::WgsUtm}));
    EXPECT_EQ(line.anglesIn, AngleForm::Degrees);
    EXPECT_EQ(line.anglesOut, AngleForm::Degrees);
    EXPECT_FALSE(line.parameters);
    EXPECT_FALSE(line.knownPoints);
    EXPECT_FALSE(line.columns.chosen);
    EXPECT_FALSE(line.geometry);
    EXPECT_FALSE(line.quiet);
    EXPECT_EQ(line.input, "-");
    EXPECT_EQ(line.output, "-");
    const unsigned cores = std::thread::hardware_concurrency();
    EXPECT_EQ(line.jobs, cores == 0 ? 1 : cores > 64 ? 64 : cores);
}

TEST(ConvertCommandLine, EveryOptionIsTaken) {
    const ConvertCommandLine line = convertLine(
        {"--from",       "utm",    "--to",         "wgsutm,tm", "--angles-in",    "dms",
         "--angles-out", "blanks", "--parameters", "p.txt",     "--known-points", "k.cor",
         "--columns",    "id,2,3", "--geometry",   "user",      "--jobs",         "3",
         "--quiet",      "in.csv", "out.gpkg"});
    EXPECT_EQ(line.from, System::Utm);
    EXPECT_EQ(line.to, (std::vector<OutputSystem>{OutputSystem::WgsUtm, OutputSystem::Tm}));
    EXPECT_EQ(line.anglesIn, AngleForm::Dms);
    EXPECT_EQ(line.anglesOut, AngleForm::Blanks);
    EXPECT_EQ(line.parameters, "p.txt");
    EXPECT_EQ(line.knownPoints, "k.cor");
    EXPECT_TRUE(line.columns.chosen);
    EXPECT_EQ(line.columns.columns[0]->name, "id");
    EXPECT_EQ(line.geometry, OutputSystem::User);
    EXPECT_EQ(line.jobs, 3U);
    EXPECT_TRUE(line.quiet);
    EXPECT_EQ(line.input, "in.csv");
    EXPECT_EQ(line.output, "out.gpkg");
}

TEST(ConvertCommandLine, EverySystemHasItsWord) {
    const std::vector<std::pair<std::string, OutputSystem>> systems{
        {"wgs", OutputSystem::Wgs},
        {"user", OutputSystem::User},
        {"tm", OutputSystem::Tm},
        {"utm", OutputSystem::Utm},
        {"wgsutm", OutputSystem::WgsUtm}};
    for (const auto& [word, system] : systems) {
        EXPECT_EQ(convertLine({"--from", "wgs", "--to", word}).to,
                  std::vector<OutputSystem>{system});
        EXPECT_EQ(convertLine({"--from", "wgs", "--geometry", word}).geometry, system);
    }
    EXPECT_EQ(convertLine({"--from", "wgs"}).from, System::Wgs);
    EXPECT_EQ(convertLine({"--from", "user"}).from, System::User);
}

TEST(ConvertCommandLine, EveryFormOfAnglesHasItsWord) {
    EXPECT_EQ(convertLine({"--from", "wgs", "--angles-in", "deg"}).anglesIn, AngleForm::Degrees);
    const std::vector<std::pair<std::string, AngleForm>> forms{{"deg", AngleForm::Degrees},
                                                               {"dms", AngleForm::Dms},
                                                               {"blanks", AngleForm::Blanks},
                                                               {"hyphens", AngleForm::Hyphens}};
    for (const auto& [word, form] : forms)
        EXPECT_EQ(convertLine({"--from", "wgs", "--angles-out", word}).anglesOut, form);
}

TEST(ConvertCommandLine, AWordThatIsUnknownIsNamedWithThoseThatAreKnown) {
    const auto from = readConvertCommandLine(Words{"--from", "wgsutm"});
    EXPECT_EQ(from.complaint, "--from is wgs, user, tm or utm, not wgsutm");
    EXPECT_EQ(readConvertCommandLine({}).complaint, "--from must be given: wgs, user, tm or utm");
    EXPECT_EQ(said({"--to", "tm,xyz"}), "--to knows wgs, user, tm, utm and wgsutm, not xyz");
    EXPECT_EQ(said({"--to", "tm,"}), "--to knows wgs, user, tm, utm and wgsutm, not ");
    EXPECT_EQ(said({"--to", "all,tm"}), "--to knows wgs, user, tm, utm and wgsutm, not all");
    EXPECT_EQ(said({"--to", "tm,utm,tm"}), "--to names tm twice");
    EXPECT_EQ(said({"--geometry", "all"}),
              "--geometry knows wgs, user, tm, utm and wgsutm, not all");
    EXPECT_EQ(said({"--angles-in", "hyphens"}), "--angles-in is deg or dms, not hyphens");
    EXPECT_EQ(said({"--angles-out", "rad"}),
              "--angles-out is deg, dms, blanks or hyphens, not rad");
}

TEST(ConvertCommandLine, JobsAreAWholeNumberAndNoMoreThanSixtyFourAreMade) {
    const std::vector<std::pair<std::string, unsigned>> numbers{
        {"1", 1}, {"2", 2}, {"063", 63}, {"64", 64}, {"65", 64}, {"99999999999999999999999", 64}};
    for (const auto& [word, jobs] : numbers)
        EXPECT_EQ(convertLine({"--from", "wgs", "--jobs", word}).jobs, jobs) << word;
    for (const std::string word :
         {"0", "00", "-1", "+1", "two", "2x", "x2", "1.5", " 2", "2 ", "99999999999999999999999x"})
        EXPECT_EQ(said({"--jobs", word}), "--jobs is a whole number of at least 1, not " + word);
}

const Words kOptions{"--from",         "--to",      "--angles-in", "--angles-out", "--parameters",
                     "--known-points", "--columns", "--geometry",  "--jobs"};

TEST(ConvertCommandLine, AnOptionWithoutValueIsNamed) {
    for (const std::string& option : kOptions) {
        for (const Words& words :
             {Words{option}, Words{option + "="}, Words{option, ""}, Words{"in.csv", option}})
            EXPECT_EQ(readConvertCommandLine(words).complaint, option + " needs a value");
    }
    EXPECT_NE(readConvertCommandLine(Words{"--from", "--quiet"}).complaint.find("--from"),
              std::string::npos);
}

TEST(ConvertCommandLine, AnOptionGivenTwiceIsNamed) {
    for (const std::string& option : kOptions)
        EXPECT_EQ(readConvertCommandLine(Words{option, "a", option + "=a"}).complaint,
                  option + " is given twice");
}

TEST(ConvertCommandLine, OfSeveralOptionsGivenTwiceTheFirstOfTheHelpIsNamed) {
    for (std::size_t i = 0; i + 1 < kOptions.size(); ++i) {
        const std::string& one = kOptions[i];
        const std::string& next = kOptions[i + 1];
        EXPECT_EQ(readConvertCommandLine(Words{next, "a", next, "b", one, "a", one, "b"}).complaint,
                  one + " is given twice");
    }
}

TEST(ConvertCommandLine, AMisspeltOptionIsNamedBeforeWhatIsMissing) {
    EXPECT_EQ(readConvertCommandLine(Words{"--frm", "wgs"}).complaint, "unknown option --frm");
    EXPECT_EQ(said({"-q"}), "unknown option -q");
    EXPECT_EQ(said({"in.csv", "-o.csv", "--", "-x"}), "unknown option -o.csv");
    EXPECT_FALSE(readConvertCommandLine(Words{"--from", "wgs", "--quiet=1"}).line);
    EXPECT_FALSE(readConvertCommandLine(Words{"--help=1"}).line);
    EXPECT_FALSE(readConvertCommandLine(Words{"--version=1"}).line);
}

TEST(ConvertCommandLine, NamesAreAnInputAndAnOutput) {
    EXPECT_EQ(convertLine({"in", "--from", "wgs"}).output, "-");
    const ConvertCommandLine streams = convertLine({"-", "--from", "wgs", "out"});
    EXPECT_EQ(streams.input, "-");
    EXPECT_EQ(streams.output, "out");
    const ConvertCommandLine odd = convertLine({"--from", "wgs", "--", "--columns=", "-odd"});
    EXPECT_EQ(odd.input, "--columns=");
    EXPECT_EQ(odd.output, "-odd");
    EXPECT_EQ(convertLine({"--from", "wgs", "a="}).input, "a=");
    EXPECT_EQ(said({"a", "b", "c"}), "more than an INPUT and an OUTPUT are given");
    EXPECT_EQ(said({"a", ""}), "a file has an empty name");
}

TEST(ConvertCommandLine, HelpComesBeforeTheVersionAndBothBeforeWhatIsWrong) {
    EXPECT_EQ(convertLine({"--help", "--version"}).wish, Wish::Help);
    EXPECT_EQ(convertLine({"a", "b", "c", "--from", "x", "--help"}).wish, Wish::Help);
    EXPECT_EQ(convertLine({"--bogus", "--version"}).wish, Wish::Version);
}

TEST(ConvertCommandLine, TheHelpBeginsWithTheUsageAndNamesEveryOption) {
    const std::string help = convertHelpText();
    EXPECT_TRUE(help.starts_with(convertUsageText() + "\n"));
    for (const std::string& option : kOptions)
        EXPECT_NE(help.find("\n  " + option + " "), std::string::npos) << option;
}

}  // namespace
}  // namespace kelvo
