#include "common/run_time_fault.h"

#include <utility>

namespace kelvo {

RuntimeFault::RuntimeFault(Fault fault, std::string text) : fault_(fault), text_(std::move(text)) {}

void RuntimeFault::addPlace(std::string_view place) {
    text_ = std::string(place) + ": " + text_;
}

std::string_view faultSentence(Fault fault) {
    switch (fault) {
        case Fault::InvalidCall:
            return "계산할 수 없는 값입니다";
        case Fault::Overflow:
            return "값이 나타낼 수 있는 범위를 넘었습니다";
        case Fault::Subscript:
            return "표의 범위를 벗어났습니다";
        case Fault::DivisionByZero:
            return "0으로 나누었습니다";
        case Fault::TypeMismatch:
            return "숫자가 아닙니다";
        case Fault::FileNotFound:
            return "파일을 찾을 수 없습니다";
        case Fault::FileAlreadyOpen:
            return "파일이 이미 열려 있습니다";
        case Fault::DiskFull:
            return "디스크에 빈 자리가 없습니다";
        case Fault::InputPastEnd:
            return "파일의 끝을 지나 읽으려 하였습니다";
        case Fault::PermissionDenied:
            return "파일을 쓸 권한이 없습니다";
        case Fault::DiskNotReady:
            return "디스크가 준비되지 않았습니다";
        case Fault::PathFileAccess:
            return "경로나 파일을 사용할 수 없습니다";
        case Fault::PathNotFound:
            return "경로를 찾을 수 없습니다";
        case Fault::DialogCancelled:
            return "취소를 선택하였습니다";
    }
    return "알 수 없는 오류입니다";
}

void raise(Fault fault, std::string_view text) {
    throw RuntimeFault(fault, std::string(text.empty() ? faultSentence(fault) : text));
}

}  // namespace kelvo
