// A line of text that keeps both its ends in sight: what doesn't fit is left out in the middle.
#pragma once

#include <QLabel>

namespace kelvo::desktop {

class ElidedLabel final : public QLabel {
public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    // The whole text stands in the tooltip while part of it is left out.
    void setWholeText(const QString& text);
    [[nodiscard]] const QString& wholeText() const { return whole_; }

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void fit();

    QString whole_;
};

}  // namespace kelvo::desktop
