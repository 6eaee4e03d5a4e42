// Two parts of a panel side by side where the width allows it, else one below the other.
#pragma once

#include <QLayout>
#include <vector>

namespace kelvo::desktop {

class FoldingPair final : public QLayout {
public:
    // The shares (0 or more, not both 0) are the ratio of their widths, as far as each gets what it
    // needs. A part may be such a pair, too: it folds after this one.
    FoldingPair(QLayout* first, QLayout* second, int firstShare, int secondShare);

    // From this width on, in pixels, both stand side by side.
    [[nodiscard]] int unfoldedWidth() const;

    void addItem(QLayoutItem* item) override { parts_.push_back(item); }
    [[nodiscard]] int count() const override { return static_cast<int>(parts_.size()); }
    [[nodiscard]] QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSize() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] int minimumHeightForWidth(int width) const override;
    void setGeometry(const QRect& place) override;

private:
    [[nodiscard]] int widthOfFirst(int width) const;

    std::vector<QLayoutItem*> parts_;  // two; fewer only while they are taken away
    int firstShare_;
    int secondShare_;
};

}  // namespace kelvo::desktop
