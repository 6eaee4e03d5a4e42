#include "library/definition_text.h"

#include <gtest/gtest.h>

#include <tuple>

#include "library/bad_definition.h"
#include "library/text_bytes.h"

namespace kelvo {
namespace {

const std::string kPoint = "기1 37.30 127.00 100 37.2950 127.0008 80 1\n";

std::string complaint(const std::string& parameters, std::optional<std::string> known) {
    try {
        std::ignore = converterOf({.parameters = parameters, .knownPoints = std::move(known)});
    } catch (const BadDefinition& bad) {
        return bad.what();
    }
    return "";
}

TEST(DefinitionText, KnownPointsCountWhereTheCorrectionIsOn) {
    const auto on = converterOf({.parameters = "CORRECTION\n", .knownPoints = kPoint + "*\n\n"});
    ASSERT_TRUE(on.definition().corrects);
    ASSERT_TRUE(on.definition().known);
    EXPECT_EQ(on.definition().known->size(), 1U);
    const auto off = converterOf({.parameters = "", .knownPoints = "nonsense"});
    EXPECT_FALSE(off.definition().corrects);
}

TEST(DefinitionText, ACorrectionWithoutKnownPointsIsRefusedWithItsLine) {
    EXPECT_TRUE(complaint("add 1\nCORRECTION\n", std::nullopt).starts_with("parameters line 2: "));
    EXPECT_EQ(complaint("CORRECTION\nNOCORRECTION\n", std::nullopt), "");
}

TEST(DefinitionText, KnownPointsThatARunCouldNotUseAreRefused) {
    std::string tooMany;
    for (int i = 0; i < 201; ++i) tooMany += kPoint;
    const std::string weightless = "기1 37.30 127.00 100 37.2950 127.0008 80 0\n";
    for (const std::string& known :
         {std::string(), std::string("*\n\n"), kPoint, weightless + "*\n\n", tooMany + "*\n\n"}) {
        EXPECT_NE(complaint("CORRECTION", known), "") << known.substr(0, 200);
        EXPECT_EQ(complaint("NOCORRECTION", known), "");
    }
}

TEST(DefinitionText, BytesAreUtf8WhereTheyAreWellFormedOtherwiseTheCodePage) {
    EXPECT_EQ(textOfBytes("\xEF\xBB\xBF* 점"), "* 점");
    EXPECT_EQ(textOfBytes("* 점"), "* 점");
    EXPECT_EQ(textOfBytes("* \xC1\xA1"), "* 점");
}

}  // namespace
}  // namespace kelvo
