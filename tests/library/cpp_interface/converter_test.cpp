// The C++ headers over libkelvo, as a program of others includes them: nothing of the inside is
// linked here, since its names are partly the same.
#include <kelvo/converter.h>

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <string>
#include <vector>

namespace kelvo {
namespace {

constexpr Given kPlace{37.5, 127.25, 80};

TEST(Converter, ConvertsOnePointAsItConvertsMany) {
    const Converter converter({.parameters = "add 1\n"});
    const Point one = converter.convert(System::Wgs, kPlace);
    EXPECT_EQ(one.status, 0);
    EXPECT_EQ(one.wgs_lat, kPlace.first);
    EXPECT_NEAR(one.tm_y, 222000, 100);  // a quarter of a degree east of its meridian, less 10.405"

    // As much room as points, and more.
    for (const std::size_t room : {std::size_t{3}, std::size_t{5}}) {
        const std::vector<Given> given(3, kPlace);
        std::vector<Point> points(room);
        converter.convert(System::Wgs, given, points);
        for (std::size_t i = 0; i < given.size(); ++i) EXPECT_EQ(points[i].tm_x, one.tm_x) << i;
        for (std::size_t i = given.size(); i < room; ++i) EXPECT_EQ(points[i].tm_x, 0) << i;
    }
}

TEST(Converter, WantsRoomForEveryPoint) {
    const Converter converter;
    const std::vector<Given> given(3, kPlace);
    std::array<Point, 2> points{};
    EXPECT_THROW(converter.convert(System::Wgs, given, points), std::invalid_argument);
    EXPECT_EQ(points[0].wgs_lat, 0);
}

TEST(Converter, RefusesASystemThatIsNone) {
    const Converter converter;
    EXPECT_THROW((void)converter.convert(static_cast<System>(4), kPlace), std::invalid_argument);
}

TEST(Converter, ABadDefinitionIsThrownWithItsReason) {
    std::string reason;
    try {
        const Converter converter({.parameters = "add 1\nCORRECTION\n"});
    } catch (const DefinitionError& error) {
        reason = error.what();
    }
    EXPECT_EQ(reason, "parameters line 2: 보정을 하려면 보정점이 있어야 합니다");
}

TEST(Converter, TakesKnownPointsAsATextOfTheirOwn) {
    const std::string known = "k 37.3000 127.1500 80 37.3010 127.1510 80 1\n*\n*\n";
    const Converter plain;
    const Converter corrected({.parameters = "CORRECTION\n", .knownPoints = known});
    const Point moved = corrected.convert(System::Wgs, kPlace);
    EXPECT_EQ(moved.status, 0) << corrected.statusText(moved.status);
    EXPECT_GT(std::fabs(moved.user_lat - plain.convert(System::Wgs, kPlace).user_lat), 1e-6);
    EXPECT_THROW(Converter({.parameters = "CORRECTION\n"}), DefinitionError);
}

TEST(Converter, SaysWhatAStatusMeans) {
    const Converter converter;
    EXPECT_EQ(converter.statusText(0), "");
    const Point none = converter.convert(System::Wgs, {1e300, 0, 0});
    EXPECT_NE(none.status, 0);
    EXPECT_NE(converter.statusText(none.status), "");
}

TEST(Converter, ACopyOutlivesTheOneItWasMadeOf) {
    Converter copy;
    Point before{};
    {
        const Converter made({.parameters = "add 0\n"});
        before = made.convert(System::Wgs, kPlace);
        copy = made;
    }
    EXPECT_EQ(copy.convert(System::Wgs, kPlace).tm_y, before.tm_y);
    EXPECT_NE(Converter().convert(System::Wgs, kPlace).tm_y, before.tm_y);
}

}  // namespace
}  // namespace kelvo
