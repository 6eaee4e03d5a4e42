// Bytes of a test as an input, in pieces of any size.
#pragma once

#include <algorithm>
#include <memory>
#include <string>
#include <utility>

#include "common/disk.h"

namespace kelvo {

class BytesOfTest final : public ByteReader {
public:
    explicit BytesOfTest(std::string bytes, std::size_t most = std::string::npos)
        : bytes_(std::move(bytes)), most_(most) {}

    std::size_t read(std::span<char> buffer) override {
        const std::size_t count = bytes_.copy(buffer.data(), std::min(buffer.size(), most_), next_);
        next_ += count;
        return count;
    }

private:
    std::string bytes_;
    std::size_t most_;
    std::size_t next_ = 0;
};

}  // namespace kelvo
