// A drawing surface that keeps nothing and holds the plot object to its promise: numbers only.
#pragma once

#include <cmath>
#include <initializer_list>
#include <variant>

#include "fuzz/fuzz_target.h"
#include "plot/surface.h"

namespace kelvo::fuzz {

class CheckingSurface final : public Surface {
public:
    void Line(double x1, double y1, double x2, double y2, std::int32_t /*colour*/,
              LineForm /*form*/) override {
        take({x1, y1, x2, y2});
    }
    void Circle(double x, double y, double radius, std::int32_t /*colour*/, double start,
                double end, double aspect, CircleForm /*form*/) override {
        take({x, y, radius, start, end, aspect});
    }
    [[nodiscard]] const SurfaceMembers& members() const override { return members_; }
    void write(SurfaceMember member, const SurfaceValue& value) override {
        const double* const number = std::get_if<double>(&value);
        take({number != nullptr ? *number : 0});
        assign(members_, member, value);
    }

    [[nodiscard]] double TextHeight(std::string_view /*text*/) const override {
        return 20 * members_.fontsize;
    }
    [[nodiscard]] double TextWidth(std::string_view text) const override {
        return 10 * members_.fontsize * static_cast<double>(text.size());
    }
    void print(std::string_view /*text*/) override { take({}); }
    void Cls() override { take({}); }
    void EndDoc() override { take({}); }
    void NewPage() override { take({}); }
    [[nodiscard]] double TwipsPerPixelX() const override { return 15; }
    [[nodiscard]] double TwipsPerPixelY() const override { return 15; }
    [[nodiscard]] int GetDeviceCaps(DeviceCap index) const override {
        return index == DeviceCap::ColourPlanes ? 1 : 96;
    }
    void CreateFontIndirectA(const LogicalFont& /*font*/) override { take({}); }
    void SelectObject(SelectedFont /*font*/) override { take({}); }
    void TextOutA(std::int32_t /*x*/, std::int32_t /*y*/, std::string_view /*text*/,
                  int /*length*/) override {
        take({});
    }
    void DeleteObject() override { take({}); }

    [[nodiscard]] int calls() const { return calls_; }

private:
    void take(std::initializer_list<double> numbers) {
        ++calls_;
        for (const double number : numbers)
            require(std::isfinite(number), "the surface is given numbers");
    }

    SurfaceMembers members_;
    int calls_ = 0;
};

}  // namespace kelvo::fuzz
