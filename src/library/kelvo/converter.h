// Kelvo: coordinate conversion for land surveyors in Korea. The C++ interface.
#ifndef KELVO_CONVERTER_H
#define KELVO_CONVERTER_H

#include <cstdint>
#include <memory>
#include <new>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>

#include "kelvo/kelvo.h"

namespace kelvo {

/// The system in which points are given.
enum class System {
    Wgs = KELVO_WGS,    ///< WGS84: latitude, longitude, ellipsoidal height
    User = KELVO_USER,  ///< user ellipsoid: latitude, longitude, orthometric height
    Tm = KELVO_TM,      ///< TM grid: X north, Y east, orthometric height
    Utm = KELVO_UTM,    ///< UTM grid: the same
};

/// A point as it is given, and the same in all systems.
using Given = kelvo_given;
using Point = kelvo_point;

/// What a conversion rests on; a value. Texts are UTF-8.
struct Definition {
    /// Lines of the data-file language that change the parameters of a run as it begins.
    std::string parameters{};
    /// The text of a kelvo.cor; it counts where the parameters switch the correction on.
    std::optional<std::string> knownPoints{};
};

/// What is wrong with a definition, and where.
class DefinitionError : public std::invalid_argument {
public:
    using std::invalid_argument::invalid_argument;
};

/// Converts points, each as the only one of a fresh run. A value that never changes; copies share
/// what is inside, and any number of threads may use one.
class Converter {
public:
    /// Reads the definition.
    /// @param definition parameters and known points; DefinitionError for a bad one
    explicit Converter(const Definition& definition = {}) {
        kelvo_converter* made = nullptr;
        char* text = nullptr;
        const kelvo_result result = kelvo_converter_new(
            definition.parameters.c_str(),
            definition.knownPoints ? definition.knownPoints->c_str() : nullptr, &made, &text);
        const Text message(text);
        if (result == KELVO_BAD_DEFINITION) throw DefinitionError(message ? message.get() : "");
        if (result != KELVO_OK) throw std::bad_alloc();
        converter_ = std::shared_ptr<const kelvo_converter>(
            made, [](kelvo_converter* of) { kelvo_converter_free(of); });
    }

    /// Converts points. No point throws: what is wrong with one is its status.
    /// @param system that of the given points
    /// @param given the points; angles in decimal degrees
    /// @param points room for as many; std::invalid_argument if there is less
    void convert(System system, std::span<const Given> given, std::span<Point> points) const {
        if (points.size() < given.size())
            throw std::invalid_argument("kelvo: less room than points");
        const kelvo_result result =
            kelvo_convert(converter_.get(), static_cast<kelvo_system>(system), given.data(),
                          points.data(), given.size());
        if (result == KELVO_UNKNOWN_SYSTEM) throw std::invalid_argument("kelvo: unknown system");
        if (result != KELVO_OK) throw std::bad_alloc();
    }

    /// Converts one point.
    /// @param system that of the given point
    /// @param given the point
    /// @return the point in all systems
    [[nodiscard]] Point convert(System system, const Given& given) const {
        Point point{};
        convert(system, {&given, 1}, {&point, 1});
        return point;
    }

    /// What a status means.
    /// @param status that of a point
    /// @return the messages of a run, joined by "; "; empty for 0
    [[nodiscard]] std::string statusText(std::int32_t status) const {
        const Text text(kelvo_status_text(converter_.get(), status));
        if (!text) throw std::bad_alloc();
        return text.get();
    }

private:
    struct FreeText {
        void operator()(char* text) const { kelvo_text_free(text); }
    };
    using Text = std::unique_ptr<char, FreeText>;

    std::shared_ptr<const kelvo_converter> converter_{};
};

}  // namespace kelvo

#endif
