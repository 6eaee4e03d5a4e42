// A one-line text box: numbers stand right-aligned in a fixed-pitch face.
#pragma once

#include <QLineEdit>
#include <functional>

namespace kelvo::desktop {

class NumberBox final : public QLineEdit {
    Q_OBJECT

public:
    explicit NumberBox(QWidget* parent = nullptr);

    // A box of the form selects its text when it is entered, or leaves the caret alone; Qt's own
    // habits of selecting on the way in are put aside.
    void setSelectsOnEntry(std::function<bool()> asked) { selectsOnEntry_ = std::move(asked); }

signals:
    void entered();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    std::function<bool()> selectsOnEntry_;
    bool enteredByThisPress_ = false;
};

}  // namespace kelvo::desktop
