#include "library/definition_text.h"

#include <utility>

#include "common/run_time_fault.h"
#include "library/bad_definition.h"
#include "library/measured_known_points.h"
#include "library/parameter_text.h"

namespace kelvo {

PointConverter converterOf(const DefinitionText& text) {
    const ParametersOfText read = parametersOf(text.parameters, text.parametersName);
    DatumState datum;
    try {
        KelvoSub::SetDatumPara(datum, shiftOf(read.para), read.para.Kind);
    } catch (const RuntimeFault& fault) {
        throw BadDefinition(text.parametersName, 0, fault.text());
    }
    KnownPoints known;
    if (read.para.CorrFlag != Flag::Off) {
        if (!text.knownPoints)
            throw BadDefinition(text.parametersName, read.correctionLine,
                                "보정을 하려면 보정점이 있어야 합니다");
        known =
            measuredKnownPoints(*text.knownPoints, text.knownPointsName, read.para, datum).points;
    }
    return PointConverter(definitionOf(read.para, datum, std::move(known)), text.knownPointsName);
}

}  // namespace kelvo
