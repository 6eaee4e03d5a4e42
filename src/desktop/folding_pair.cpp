#include "desktop/folding_pair.h"

#include <algorithm>

namespace kelvo::desktop {

namespace {

int leastHeight(const QLayoutItem& part, int width) {
    return part.hasHeightForWidth() ? part.minimumHeightForWidth(width)
                                    : part.minimumSize().height();
}

int unfoldedWidthOf(const QLayoutItem& part) {
    const auto* pair = dynamic_cast<const FoldingPair*>(&part);
    return pair == nullptr ? part.minimumSize().width() : pair->unfoldedWidth();
}

}  // namespace

FoldingPair::FoldingPair(QLayout* first, QLayout* second, int firstShare, int secondShare)
    : firstShare_(firstShare), secondShare_(secondShare) {
    for (QLayout* part : {first, second}) {
        addChildLayout(part);
        addItem(part);
    }
}

int FoldingPair::unfoldedWidth() const {
    int width = spacing() * (count() - 1);
    for (const QLayoutItem* part : parts_) width += unfoldedWidthOf(*part);
    return width;
}

QLayoutItem* FoldingPair::itemAt(int index) const {
    return index < 0 || index >= count() ? nullptr : parts_[static_cast<std::size_t>(index)];
}

QLayoutItem* FoldingPair::takeAt(int index) {
    QLayoutItem* part = itemAt(index);
    if (part != nullptr) parts_.erase(parts_.begin() + index);
    return part;
}

QSize FoldingPair::sizeHint() const {
    QSize size(spacing() * (count() - 1), 0);
    for (const QLayoutItem* part : parts_) {
        const QSize hint = part->sizeHint();
        size = QSize(size.width() + hint.width(), std::max(size.height(), hint.height()));
    }
    return size;
}

QSize FoldingPair::minimumSize() const {
    QSize size(0, 0);
    for (const QLayoutItem* part : parts_) size = size.expandedTo(part->minimumSize());
    return size;
}

int FoldingPair::heightForWidth(int width) const {
    return minimumHeightForWidth(width);
}

int FoldingPair::minimumHeightForWidth(int width) const {
    if (count() < 2) return minimumSize().height();
    if (width < unfoldedWidth()) {
        return leastHeight(*parts_[0], width) + spacing() + leastHeight(*parts_[1], width);
    }
    const int first = widthOfFirst(width);
    return std::max(leastHeight(*parts_[0], first),
                    leastHeight(*parts_[1], width - spacing() - first));
}

int FoldingPair::widthOfFirst(int width) const {
    const int shared = width - spacing();
    const int wanted = shared * firstShare_ / (firstShare_ + secondShare_);
    return std::clamp(wanted, unfoldedWidthOf(*parts_[0]), shared - unfoldedWidthOf(*parts_[1]));
}

void FoldingPair::setGeometry(const QRect& place) {
    QLayout::setGeometry(place);
    if (count() < 2) return;
    QRect first = place;
    QRect second = place;
    if (place.width() < unfoldedWidth()) {
        const int beyond = place.height() - minimumHeightForWidth(place.width());
        first.setHeight(leastHeight(*parts_[0], place.width()) + std::max(0, beyond / 2));
        second.setTop(first.bottom() + 1 + spacing());
    } else {
        first.setWidth(widthOfFirst(place.width()));
        second.setLeft(first.right() + 1 + spacing());
    }
    parts_[0]->setGeometry(first);
    parts_[1]->setGeometry(second);
}

}  // namespace kelvo::desktop
