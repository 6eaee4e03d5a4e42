#include "exchange/point_file_faults.h"

#include <cerrno>
#include <cstring>

#include "exchange/point_files.h"

namespace kelvo {

void failBySystem(const std::string& words, const std::string& path) {
    throw ExchangeFault(words + ": " + std::strerror(errno) + " (" + path + ")");
}

void failOtherKind(VectorFormat format, const std::string& found, const std::string& path) {
    throw ExchangeFault("읽을 수 있는 " + std::string(limitsOf(format).name) + " 파일이 아닙니다" +
                        (found.empty() ? "" : ": ") + found + " (" + path + ")");
}

void failDamaged(const std::string& found, const std::string& path) {
    throw ExchangeFault("파일이 온전하지 않아 끝까지 읽을 수 없습니다: " + found + " (" + path +
                        ")");
}

void failOtherShape(const std::string& shape, const std::string& path) {
    throw ExchangeFault("점이 아닌 도형(" + shape + ")이 들어 있습니다 (" + path + ")");
}

void failWithoutPoints(const std::string& path) {
    throw ExchangeFault("파일에 점이 하나도 없습니다 (" + path + ")");
}

}  // namespace kelvo
