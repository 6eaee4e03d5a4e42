// What was found in a KML or GPX file so far.
#pragma once

#include <deque>
#include <string>

#include "exchange/point_files.h"

namespace kelvo {

struct FoundInXml {
    std::deque<PointOfFile> points;  // those that nobody took yet
    std::string otherShape;          // one other than a point that was left out; empty without any
};

}  // namespace kelvo
