// The unit of the form and of its pictures.
#pragma once

namespace kelvo::desktop {

constexpr double kTwipsPerInch = 1440;
constexpr double kTwipsPerPoint = 20;  // of type
constexpr double kTwipsPerPixel = 15;  // of a screen of 96 pixels to the inch

}  // namespace kelvo::desktop
