#include "panels/point_texts.h"

#include <array>
#include <string_view>

#include "common/blanks.h"

namespace kelvo {

namespace {

struct SystemBoxes {
    std::string_view name;
    std::array<std::string_view, 3> boxes;
};

std::array<SystemBoxes, 4> systemsOf(const Form& form) {
    const bool wgsDegrees = form.find("optWdeg")->value();
    const bool userDegrees = form.find("optBdeg")->value();
    return {
        {{"WGS84", wgsDegrees
                       ? std::array<std::string_view, 3>{"txtWdegPhi", "txtWdegLam", "txtWdegTH"}
                       : std::array<std::string_view, 3>{"txtWdmsPhi", "txtWdmsLam", "txtWdmsTH"}},
         {"사용자 타원체",
          userDegrees ? std::array<std::string_view, 3>{"txtBdegPhi", "txtBdegLam", "txtBdegH"}
                      : std::array<std::string_view, 3>{"txtBdmsPhi", "txtBdmsLam", "txtBdmsH"}},
         {"TM", {"txtX", "txtY", "txtH"}},
         {"UTM", {"txtUX", "txtUY", "txtUH"}}}};
}

std::string rowOf(const Form& form, const SystemBoxes& system) {
    std::string row;
    for (const std::string_view box : system.boxes) {
        if (box != system.boxes.front()) row += '\t';
        row += trimmed(form.find(box)->text());
    }
    return row;
}

}  // namespace

std::string pointAsLine(const Form& form) {
    std::string line;
    for (const SystemBoxes& system : systemsOf(form)) {
        if (system.name != "WGS84") line += '\t';
        line += rowOf(form, system);
    }
    return line;
}

std::string pointAsTable(const Form& form) {
    std::string table = "좌표계\t위도, X\t경도, Y\t높이(m)\n";
    for (const SystemBoxes& system : systemsOf(form)) {
        table.append(system.name).append("\t").append(rowOf(form, system)).append("\n");
    }
    return table;
}

}  // namespace kelvo
