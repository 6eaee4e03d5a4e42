// The C functions of libkelvo: nothing but translation, and nothing lost in it.
#include <gtest/gtest.h>
#include <malloc.h>

#include <cmath>
#include <cstring>
#include <memory>
#include <regex>
#include <string>
#include <vector>

#include "kelvo/kelvo.h"
#include "library/definition_text.h"

namespace kelvo {
namespace {

struct FreeConverter {
    void operator()(kelvo_converter* converter) const { kelvo_converter_free(converter); }
};
using ConverterOfC = std::unique_ptr<kelvo_converter, FreeConverter>;

ConverterOfC converterOfC(const char* parameters, const char* known = nullptr) {
    kelvo_converter* made = nullptr;
    EXPECT_EQ(kelvo_converter_new(parameters, known, &made, nullptr), KELVO_OK);
    return ConverterOfC(made);
}

std::string taken(char* text) {
    EXPECT_NE(text, nullptr);
    const std::string copy = text;
    kelvo_text_free(text);
    return copy;
}

// The message of a definition that is refused.
std::string messageFor(const std::string& parameters, const char* known = nullptr) {
    kelvo_converter* made = nullptr;
    kelvo_converter* const nobody = converterOfC(nullptr).release();
    made = nobody;
    char* message = nullptr;
    EXPECT_EQ(kelvo_converter_new(parameters.c_str(), known, &made, &message),
              KELVO_BAD_DEFINITION);
    EXPECT_EQ(made, nullptr);
    kelvo_converter_free(nobody);
    return taken(message);
}

TEST(CInterface, TheVersionHasThreeNumbers) {
    EXPECT_TRUE(std::regex_match(kelvo_version(), std::regex(R"(\d+\.\d+\.\d+)")));
}

TEST(CInterface, EveryFieldOfEveryPointIsThatOfTheEngine) {
    constexpr std::size_t kMany = 600;  // more than two handfuls of what is converted at once
    const ConverterOfC converter = converterOfC("utm 123\nadd 0\n");
    const PointConverter engine =
        converterOf({.parameters = "utm 123\nadd 0\n", .knownPoints = std::nullopt});
    std::vector<kelvo_given> given;
    std::vector<GivenPoint> same;
    for (std::size_t i = 0; i < kMany; ++i) {
        const auto step = static_cast<double>(i);
        given.push_back({33 + step / 100, 124 + step / 80, step});
        same.push_back({33 + step / 100, 124 + step / 80, step});
    }
    given[259].first = same[259].first = 40000;
    std::vector<kelvo_point> points(kMany + 1);
    points.back().status = -7;
    ASSERT_EQ(kelvo_convert(converter.get(), KELVO_WGS, given.data(), points.data(), kMany),
              KELVO_OK);
    EXPECT_EQ(points.back().status, -7);
    std::vector<ConvertedPoint> expected(kMany);
    PointStatuses statuses;
    engine.convert(System::Wgs, AngleForm::Degrees, same, expected, statuses);
    EXPECT_EQ(statuses.size(), 1U);
    for (std::size_t i = 0; i < kMany; ++i) {
        const kelvo_point& p = points[i];
        const ConvertedPoint& e = expected[i];
        if (i == 259) {
            EXPECT_EQ(p.status, engine.code(statuses.at(i)));
            EXPECT_NE(p.status, 0);
            continue;
        }
        EXPECT_EQ(p.status, 0) << i;
        const std::vector<double> found{
            p.wgs_lat, p.wgs_lon,  p.wgs_h,    p.user_lat, p.user_lon, p.user_h,
            p.tm_x,    p.tm_y,     p.tm_h,     p.tm_lon0,  p.utm_x,    p.utm_y,
            p.utm_h,   p.utm_lon0, p.wgsutm_x, p.wgsutm_y, p.wgsutm_h, p.wgsutm_lon0};
        const std::vector<double> wanted{e.WgsPhi,  e.WgsLam,  e.WgsH,    e.UserPhi, e.UserLam,
                                         e.UserH,   e.TmX,     e.TmY,     e.TmH,     e.Lam0,
                                         e.UtmX,    e.UtmY,    e.UtmH,    e.ULam0,   e.WgsUtmX,
                                         e.WgsUtmY, e.WgsUtmH, e.WgsULam0};
        EXPECT_EQ(found, wanted) << i;
    }
}

TEST(CInterface, EverySystemIsThatOfItsNumber) {
    const ConverterOfC converter = converterOfC(nullptr);
    const PointConverter engine = converterOf({});
    const std::vector<std::pair<kelvo_system, System>> systems{{KELVO_WGS, System::Wgs},
                                                               {KELVO_USER, System::User},
                                                               {KELVO_TM, System::Tm},
                                                               {KELVO_UTM, System::Utm}};
    for (const auto& [number, system] : systems) {
        const bool angles = system == System::Wgs || system == System::User;
        const kelvo_given given{angles ? 37.25 : 450000, angles ? 127.5 : 310000, 12.5};
        kelvo_point point{};
        ASSERT_EQ(kelvo_convert(converter.get(), number, &given, &point, 1), KELVO_OK);
        std::vector<ConvertedPoint> expected(1);
        PointStatuses statuses;
        engine.convert(system, AngleForm::Degrees,
                       std::vector<GivenPoint>{{given.first, given.second, given.height}}, expected,
                       statuses);
        EXPECT_EQ(point.wgs_lat, expected[0].WgsPhi) << number;
        EXPECT_EQ(point.wgs_h, expected[0].WgsH) << number;
    }
}

TEST(CInterface, ABadPointHasNoNumbers) {
    const ConverterOfC converter = converterOfC(nullptr);
    const kelvo_given given{40000, 127, 0};
    kelvo_point point{};
    ASSERT_EQ(kelvo_convert(converter.get(), KELVO_WGS, &given, &point, 1), KELVO_OK);
    for (const double number :
         {point.wgs_lat, point.wgs_lon, point.wgs_h, point.user_lat, point.user_lon, point.user_h,
          point.tm_x, point.tm_y, point.tm_h, point.tm_lon0, point.utm_x, point.utm_y, point.utm_h,
          point.utm_lon0, point.wgsutm_x, point.wgsutm_y, point.wgsutm_h, point.wgsutm_lon0})
        EXPECT_TRUE(std::isnan(number));
    EXPECT_EQ(taken(kelvo_status_text(converter.get(), point.status)),
              converterOf({}).textOfCode(point.status));
    EXPECT_EQ(taken(kelvo_status_text(converter.get(), 4)), "0으로 나누었습니다");
    EXPECT_EQ(taken(kelvo_status_text(converter.get(), 0)), "");
}

TEST(CInterface, ADefinitionIsReadFromBothTextsWithOrWithoutAMark) {
    const char* const known =
        "\xEF\xBB\xBF"
        "A 37.30 127.00 100 37.2950 127.0008 80 1\n*\n\n";
    const ConverterOfC corrected = converterOfC(
        "\xEF\xBB\xBF"
        "CORRECTION\n",
        known);
    const ConverterOfC plain = converterOfC("", known);
    const kelvo_given given{37.5, 127, 50};
    kelvo_point one{};
    kelvo_point other{};
    ASSERT_EQ(kelvo_convert(corrected.get(), KELVO_WGS, &given, &one, 1), KELVO_OK);
    ASSERT_EQ(kelvo_convert(plain.get(), KELVO_WGS, &given, &other, 1), KELVO_OK);
    EXPECT_EQ(one.status, 0);
    EXPECT_NE(one.user_lat, other.user_lat);
}

TEST(CInterface, AMessageNamesTextLineAndReason) {
    EXPECT_EQ(messageFor("add 1\nCORRECTION\n"),
              "parameters line 2: 보정을 하려면 보정점이 있어야 합니다");
    EXPECT_TRUE(messageFor("CORRECTION\n", "*\n\n").starts_with("known_points"));
    kelvo_converter* made = nullptr;
    EXPECT_EQ(kelvo_converter_new("XYZ", nullptr, &made, nullptr), KELVO_BAD_DEFINITION);
    EXPECT_EQ(made, nullptr);
    char* message = nullptr;
    char letter = 'x';
    message = &letter;
    EXPECT_EQ(kelvo_converter_new("add 1", nullptr, &made, &message), KELVO_OK);
    EXPECT_EQ(message, nullptr);
    kelvo_converter_free(made);
}

// Memory that isn't 0 to begin with, and texts of all lengths.
TEST(CInterface, ATextHasRoomForItsEndAndHasOne) {
    mallopt(M_PERTURB, 0x55);
    for (std::size_t length = 1; length <= 32; ++length) {
        const std::string word(length, 'x');
        kelvo_converter* made = nullptr;
        char* message = nullptr;
        EXPECT_EQ(kelvo_converter_new(word.c_str(), nullptr, &made, &message),
                  KELVO_BAD_DEFINITION);
        ASSERT_NE(message, nullptr);
        const std::string wanted = "parameters line 1: 알 수 없는 줄입니다 (" + word + ")";
        EXPECT_GE(malloc_usable_size(message), wanted.size() + 1);
        EXPECT_EQ(std::string(message, strnlen(message, malloc_usable_size(message))), wanted);
        kelvo_text_free(message);
    }
    mallopt(M_PERTURB, 0);
}

}  // namespace
}  // namespace kelvo
