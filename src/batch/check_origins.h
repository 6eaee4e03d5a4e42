// The rules on origins that a line sets and the points then choose otherwise.
#pragma once

#include <optional>

#include "batch/check_finding.h"
#include "batch/trans_para.h"
#include "conversion/converted_point.h"

namespace kelvo {

class CheckedOrigins {
public:
    // Lines that set an origin, after they have changed the parameters.
    void afterZone(const TextLine& line, const TransPara& para);
    void afterTmParameters(const TextLine& line);
    void afterUtmOrigin(const TextLine& line, const TransPara& para);

    // A block is about to be read with these parameters.
    void beforeBlock(System system, const TransPara& para, Findings& findings);
    // A point of it, which was in the country.
    void afterPoint(System system, const TextLine& line, const ConvertedPoint& point,
                    Findings& findings);

private:
    // An origin that no block has been read with, and no point of another system has chosen
    // otherwise.
    struct Waiting {
        TextLine line;
        double Lam0 = 0;
    };

    std::optional<Waiting> zone_;
    std::optional<Waiting> utm_;
    std::optional<TextLine> tmParameters_;
    bool saidJeju_ = false;
};

}  // namespace kelvo
