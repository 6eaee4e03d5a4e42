// Files dropped on the window, wherever they fall.
#pragma once

#include <QMimeData>
#include <QWidget>
#include <functional>
#include <string>
#include <vector>

namespace kelvo::desktop {

// The files among what is dragged that the program opens: data files (*.dat) and what runs write
// (*.out, *.det), named in the bytes of the system. Empty if there is anything else among it.
[[nodiscard]] std::vector<std::string> openableFiles(const QMimeData& data);

// Watches a window and everything in it that takes drops of its own, so that a file dropped on a
// text box is opened and doesn't become text. Whatever else is dropped goes its way.
class FileDrop final : public QObject {
public:
    using Open = std::function<void(const std::vector<std::string>& paths)>;

    // Made when all widgets of the window are there.
    FileDrop(QWidget& window, Open open);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Open open_;
};

}  // namespace kelvo::desktop
