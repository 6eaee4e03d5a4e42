// The C interface over the engine: nothing but translation.
#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <new>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>

#include "common/utf8.h"
#include "kelvo/kelvo.h"
#include "library/bad_definition.h"
#include "library/definition_text.h"

struct kelvo_converter {
    kelvo::PointConverter converter;
};

namespace {

using namespace kelvo;

constexpr std::size_t kPointsAtOnce = 256;

// As malloc makes it, so that C can hold it; null without memory.
char* textForC(std::string_view text) {
    auto* const copy = static_cast<char*>(std::malloc(text.size() + 1));
    if (copy == nullptr) return nullptr;
    std::memcpy(copy, text.data(), text.size());
    copy[text.size()] = '\0';
    return copy;
}

// C hands over any number; as an enumeration of C++ one that is no system must not even be read.
std::optional<System> systemOf(const kelvo_system& system) {
    std::underlying_type_t<kelvo_system> number{};
    std::memcpy(&number, &system, sizeof number);
    switch (number) {
        case KELVO_WGS:
            return System::Wgs;
        case KELVO_USER:
            return System::User;
        case KELVO_TM:
            return System::Tm;
        case KELVO_UTM:
            return System::Utm;
    }
    return std::nullopt;
}

GivenPoint givenPointOf(const kelvo_given& given) {
    return {.first = given.first, .second = given.second, .height = given.height};
}

kelvo_point pointOf(const ConvertedPoint& p) {
    return {.wgs_lat = p.WgsPhi,
            .wgs_lon = p.WgsLam,
            .wgs_h = p.WgsH,
            .user_lat = p.UserPhi,
            .user_lon = p.UserLam,
            .user_h = p.UserH,
            .tm_x = p.TmX,
            .tm_y = p.TmY,
            .tm_h = p.TmH,
            .tm_lon0 = p.Lam0,
            .utm_x = p.UtmX,
            .utm_y = p.UtmY,
            .utm_h = p.UtmH,
            .utm_lon0 = p.ULam0,
            .wgsutm_x = p.WgsUtmX,
            .wgsutm_y = p.WgsUtmY,
            .wgsutm_h = p.WgsUtmH,
            .wgsutm_lon0 = p.WgsULam0,
            .status = 0};
}

kelvo_point badPoint(std::int32_t status) {
    constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
    return {kNone, kNone, kNone, kNone, kNone, kNone, kNone, kNone, kNone, kNone,
            kNone, kNone, kNone, kNone, kNone, kNone, kNone, kNone, status};
}

class SomePoints {
public:
    void convert(const PointConverter& converter, System system, std::span<const kelvo_given> given,
                 kelvo_point* points) {
        const auto converted = std::span(converted_).first(given.size());
        std::ranges::transform(given, given_.begin(), givenPointOf);
        converter.convert(system, AngleForm::Degrees, std::span(given_).first(given.size()),
                          converted, statuses_);
        std::ranges::transform(converted, points, pointOf);
        for (const auto& [place, status] : statuses_)
            points[place] = badPoint(converter.code(status));
    }

private:
    std::array<GivenPoint, kPointsAtOnce> given_;
    std::array<ConvertedPoint, kPointsAtOnce> converted_;
    PointStatuses statuses_;
};

}  // namespace

const char* kelvo_version(void) {
    return KELVO_VERSION;
}

kelvo_result kelvo_converter_new(const char* parameters, const char* known_points,
                                 kelvo_converter** converter, char** message) {
    *converter = nullptr;
    if (message != nullptr) *message = nullptr;
    try {
        DefinitionText text;
        if (parameters != nullptr) text.parameters = withoutMark(parameters);
        if (known_points != nullptr) text.knownPoints = withoutMark(known_points);
        *converter = new kelvo_converter{converterOf(text)};
        return KELVO_OK;
    } catch (const BadDefinition& bad) {
        if (message != nullptr) *message = textForC(bad.what());
        return KELVO_BAD_DEFINITION;
    } catch (const std::bad_alloc&) {
        return KELVO_OUT_OF_MEMORY;
    }
}

void kelvo_converter_free(kelvo_converter* converter) {
    delete converter;
}

kelvo_result kelvo_convert(const kelvo_converter* converter, kelvo_system system,
                           const kelvo_given* given, kelvo_point* points, size_t count) {
    const std::optional<System> from = systemOf(system);
    if (!from) return KELVO_UNKNOWN_SYSTEM;
    try {
        SomePoints some;
        for (std::size_t first = 0; first < count; first += kPointsAtOnce)
            some.convert(converter->converter, *from,
                         {given + first, std::min(kPointsAtOnce, count - first)}, points + first);
        return KELVO_OK;
    } catch (const std::bad_alloc&) {
        return KELVO_OUT_OF_MEMORY;
    }
}

char* kelvo_status_text(const kelvo_converter* converter, int32_t status) {
    try {
        return textForC(converter->converter.textOfCode(status));
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void kelvo_text_free(char* text) {
    std::free(text);
}
