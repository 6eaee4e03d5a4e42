// The Python module over the C++ interface: arrays in, a structured array out.
#include <kelvo/converter.h>
#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <vector>

namespace py = pybind11;

namespace {

using Numbers = py::array_t<double, py::array::c_style | py::array::forcecast>;

kelvo::System systemOf(const std::string& word) {
    if (word == "wgs") return kelvo::System::Wgs;
    if (word == "user") return kelvo::System::User;
    if (word == "tm") return kelvo::System::Tm;
    if (word == "utm") return kelvo::System::Utm;
    throw py::value_error("unknown system '" + word + "': wgs, user, tm and utm are known");
}

// A NUL would end the text for C; lines take it for a blank, so it can be one.
std::string withoutNuls(std::string text) {
    for (char& c : text)
        if (c == '\0') c = ' ';
    return text;
}

kelvo::Converter makeConverter(const std::string& parameters,
                               const std::optional<std::string>& known_points) {
    kelvo::Definition definition{.parameters = withoutNuls(parameters), .knownPoints = {}};
    if (known_points) definition.knownPoints = withoutNuls(*known_points);
    try {
        return kelvo::Converter(definition);
    } catch (const kelvo::DefinitionError& error) {
        throw py::value_error(error.what());
    }
}

// The common shape of the arrays, and each of them with that shape (without a copy where one is
// stretched).
struct Broadcast {
    std::vector<py::ssize_t> shape;
    std::array<py::array, 3> arrays;
};

Broadcast broadcast(const Numbers& first, const Numbers& second, const Numbers& height) {
    const py::module_ numpy = py::module_::import("numpy");
    const py::tuple stretched = py::tuple(numpy.attr("broadcast_arrays")(first, second, height));
    Broadcast result;
    for (std::size_t i = 0; i < result.arrays.size(); ++i)
        result.arrays[i] = py::reinterpret_borrow<py::array>(stretched[i]);
    const py::array& one = result.arrays[0];
    result.shape.assign(one.shape(), one.shape() + one.ndim());
    return result;
}

py::array convert(const kelvo::Converter& converter, const std::string& system,
                  const Numbers& first, const Numbers& second, const Numbers& height) {
    const kelvo::System from = systemOf(system);
    const Broadcast given = broadcast(first, second, height);
    const Numbers x(given.arrays[0]);
    const Numbers y(given.arrays[1]);
    const Numbers h(given.arrays[2]);
    py::array_t<kelvo::Point> result(given.shape);
    const auto count = static_cast<std::size_t>(result.size());
    const double* const xs = x.data();
    const double* const ys = y.data();
    const double* const hs = h.data();
    kelvo::Point* const points = result.mutable_data();
    {
        const py::gil_scoped_release unlocked;
        constexpr std::size_t kAtOnce = 1024;
        std::array<kelvo::Given, kAtOnce> some{};
        for (std::size_t start = 0; start < count; start += kAtOnce) {
            const std::size_t size = std::min(kAtOnce, count - start);
            for (std::size_t i = 0; i < size; ++i)
                some[i] = {
                    .first = xs[start + i], .second = ys[start + i], .height = hs[start + i]};
            converter.convert(from, std::span(some).first(size), {points + start, size});
        }
    }
    return result;
}

}  // namespace

PYBIND11_MODULE(_kelvo, module) {
    module.doc() = "Coordinate conversion for land surveyors in Korea.";
    module.attr("__version__") = kelvo_version();
    PYBIND11_NUMPY_DTYPE(kelvo::Point, wgs_lat, wgs_lon, wgs_h, user_lat, user_lon, user_h, tm_x,
                         tm_y, tm_h, tm_lon0, utm_x, utm_y, utm_h, utm_lon0, wgsutm_x, wgsutm_y,
                         wgsutm_h, wgsutm_lon0, status);
    py::class_<kelvo::Converter>(
        module, "Converter",
        "Converts points between WGS84, the user ellipsoid, the TM grid and the UTM grid.\n\n"
        "A converter never changes; any number of threads may share one.")
        .def(py::init(&makeConverter), py::arg("parameters") = "",
             py::arg("known_points") = py::none(),
             "parameters: lines of the data-file language that change the parameters of a run as\n"
             "it begins. known_points: the text of a kelvo.cor, or None; it counts where the\n"
             "parameters switch the correction on. ValueError, with line and reason, for a text\n"
             "that is wrong.")
        .def("convert", &convert, py::arg("system"), py::arg("first"), py::arg("second"),
             py::arg("h") = 0.0,
             "Converts points, each as the only one of a fresh run.\n\n"
             "system: 'wgs', 'user' (latitude, longitude in decimal degrees, height in metres),\n"
             "'tm' or 'utm' (X north, Y east, height in metres). first, second, h: numbers or\n"
             "arrays (float64), broadcast as NumPy's are.\n\n"
             "Returns a structured array of their common shape (0-d for scalars): wgs_lat wgs_lon\n"
             "wgs_h user_lat user_lon user_h tm_x tm_y tm_h tm_lon0 utm_x utm_y utm_h utm_lon0\n"
             "wgsutm_x wgsutm_y wgsutm_h wgsutm_lon0 (degrees and metres, unrounded; not-a-number\n"
             "where a point failed) and status (int32, 0 for a good point).\n\n"
             "ValueError for an unknown system and for shapes that don't fit. The lock of the\n"
             "interpreter is released while points are computed.")
        .def("status_text", &kelvo::Converter::statusText, py::arg("code"),
             "What a status means: the messages of a run, joined by '; '. Empty for 0.");
}
