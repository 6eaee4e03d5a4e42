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

    // Makes the box wide enough for this many digits, in whatever size its text has.
    void setLetters(int letters);

signals:
    void entered();

protected:
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    std::function<bool()> selectsOnEntry_;
    bool enteredByThisPress_ = false;
    int letters_ = 0;
};

}  // namespace kelvo::desktop
