// The points of a KML or GPX file, gathered while it is read.
#pragma once

#include <deque>
#include <string>

#include "exchange/point_files.h"
#include "exchange/xml/xml_stream.h"

namespace kelvo {

class PointsInXml : public XmlEvents {
public:
    // False where none is waiting: more of the file has to be read.
    [[nodiscard]] bool take(PointOfFile& point) {
        if (waiting_.empty()) return false;
        point = std::move(waiting_.front());
        waiting_.pop_front();
        return true;
    }

    // A shape other than a point that was left out, empty if there was none.
    [[nodiscard]] virtual std::string otherShape() const { return {}; }

protected:
    void put(PointOfFile point) { waiting_.push_back(std::move(point)); }

private:
    std::deque<PointOfFile> waiting_;
};

}  // namespace kelvo
