// A folder as GDAL's drivers see it, with an eye on every write: several drivers pass over a full
// disk in silence.
#pragma once

#include <memory>
#include <string>

namespace kelvo {

class CheckedFiles {
public:
    // `folder` is a folder of the machine.
    explicit CheckedFiles(std::string folder);
    ~CheckedFiles();
    CheckedFiles(const CheckedFiles&) = delete;
    CheckedFiles& operator=(const CheckedFiles&) = delete;

    // The name by which drivers reach the file `name` of the folder.
    [[nodiscard]] std::string pathOf(const std::string& name) const;

    // The first errno of a write, flush or close; 0 for none.
    [[nodiscard]] int failure() const;

    struct State;

private:
    std::unique_ptr<State> state_;
};

}  // namespace kelvo
