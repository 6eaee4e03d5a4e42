#include "batch/corr_file.h"

#include "batch/wording.h"
#include "common/run_time_fault.h"
#include "geodesy/angle_forms.h"

namespace kelvo {

namespace {

constexpr int kCorrFields = 8;

bool isCommentOrBlank(const FieldStore& fields) {
    const std::string& first = fields.FieldStr(1);
    return first.empty() || first.front() == '*';
}

void fillSlot(CorrPoint& point, const FieldStore& fields, MessageBoxes& messages) {
    const auto degrees = [&](int n) {
        const double given = fields.FieldNum(n);
        return reportedDegrees(messages, given, KelvoSub::DmsToDeg(given));
    };
    point.Name = fields.FieldStr(1);
    point.WgsH = fields.FieldNum(4);
    point.UserH = fields.FieldNum(7);
    point.Weight = fields.FieldSng(8);
    point.WgsPhi = degrees(2);
    point.WgsLam = degrees(3);
    point.UserPhi = degrees(5);
    point.UserLam = degrees(6);
}

}  // namespace

// The loop has two points of re-entry, and the end of the file is looked at in one of them only.
void ReadCorrFile(CorrPointTable& table, TextReader& file, FieldStore& fields,
                  MessageBoxes& messages) {
    table.CorrCount = 0;
    file.readLine(fields.LineBuf);
    while (!file.atEnd()) {
        genSub::ParseFields(fields, kCorrFields);
        while (!isCommentOrBlank(fields)) {
            if (table.CorrCount >= kMostCorrPoints)
                raise(Fault::Subscript,
                      std::to_string(table.CorrCount + 1) + "번째 보정점입니다. 보정점은 " +
                          std::to_string(kMostCorrPoints) + "개까지 다룰 수 있습니다");
            ++table.CorrCount;
            fillSlot(table.inUse().back(), fields, messages);
            file.readLine(fields.LineBuf);
            genSub::ParseFields(fields, kCorrFields);
        }
        file.readLine(fields.LineBuf);
    }
}

void ReadCorrFile(CorrPointTable& table, const std::string& path, FieldStore& fields, Disk& disk,
                  MessageBoxes& messages) {
    table.CorrCount = 0;
    TextReader file(disk, path);
    ReadCorrFile(table, file, path, fields, messages);
}

void ReadCorrFile(CorrPointTable& table, TextReader& file, const std::string& path,
                  FieldStore& fields, MessageBoxes& messages) {
    table.CorrCount = 0;
    try {
        ReadCorrFile(table, file, fields, messages);
    } catch (RuntimeFault& fault) {
        fault.addPlace(path + " " + std::to_string(file.lineInHand()) + "번째 줄");
        throw;
    }
}

}  // namespace kelvo
