#include "desktop/panel_stage.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QLayout>
#include <QLineEdit>
#include <QStyle>
#include <algorithm>

namespace kelvo::desktop {

namespace {

// The first box of a panel that is open to typing, else whatever the Tab key comes to first.
QWidget* firstToType(QWidget* panel) {
    QWidget* first = nullptr;
    for (QWidget* at = panel->nextInFocusChain(); at != panel; at = at->nextInFocusChain()) {
        const bool takesKeys = panel->isAncestorOf(at) && at->isVisible() && at->isEnabled() &&
                               (at->focusPolicy() & Qt::TabFocus) == Qt::TabFocus &&
                               at->focusProxy() == nullptr;
        if (!takesKeys) continue;
        const auto* box = qobject_cast<QLineEdit*>(at);
        if (box != nullptr && !box->isReadOnly()) return at;
        if (first == nullptr) first = at;
    }
    return first;
}

}  // namespace

void PanelStage::setUp(const WidgetBook& book, const FilePanel& filePanel) {
    file_ = filePanel;
    background_ = book.find("Image1");
    onePoint_ = book.at("frmeOne");
    plot_ = book.at("pctPlot");
    plotSettings_ = book.at("frmePcfg");
    printMode_ = book.at("frmePrintMode");
    text_ = book.at("Richtxt");
    const auto part = [&](Layer layer, const char* name) {
        parts_.push_back({layer, book.form().find(name), book.at(name)});
        book.at(name)->installEventFilter(this);
    };
    part(Layer::OnePoint, "frmeOne");
    part(Layer::File, "frmeFile");
    part(Layer::File, "pctPlot");
    part(Layer::File, "frmePcfg");
    part(Layer::PrintMode, "frmePrintMode");
    plot_->raise();
    plotSettings_->raise();
    if (background_ != nullptr) background_->lower();
    settle(Layer::None);
}

// As wide as the buttons under a text in two rows; larger panels scroll.
QSize PanelStage::minimumSizeHint() const {
    const int row = file_.panel == nullptr ? 0 : file_.panel->minimumSizeHint().width();
    return {std::max(360, row), 200};
}

void PanelStage::resizeEvent(QResizeEvent*) {
    arrange();
}

bool PanelStage::eventFilter(QObject* watched, QEvent* event) {
    const bool shown = event->type() == QEvent::Show;
    if ((shown || event->type() == QEvent::Hide) && !event->spontaneous() && !settling_) {
        const auto part = std::find_if(parts_.begin(), parts_.end(),
                                       [watched](const Part& at) { return at.widget == watched; });
        if (part != parts_.end()) settle(shown ? part->layer : Layer::None);
    }
    return QWidget::eventFilter(watched, event);
}

bool PanelStage::isWanted(Layer layer) const {
    return std::any_of(parts_.begin(), parts_.end(), [layer](const Part& part) {
        return part.layer == layer && part.control->visible();
    });
}

void PanelStage::settle(Layer shown) {
    settling_ = true;
    const Layer before = top();
    keepFocusOf(before);
    std::erase_if(order_,
                  [this, shown](Layer layer) { return layer == shown || !isWanted(layer); });
    if (isWanted(shown)) order_.push_back(shown);
    for (const Part& part : parts_) {
        part.widget->setVisible(part.control->visible() && part.layer == top());
    }
    arrange();
    if (top() != before || !hasFocusIn(top())) giveFocusTo(top());
    settling_ = false;
}

bool PanelStage::hasFocusIn(Layer layer) const {
    QWidget* focused = window()->focusWidget();
    return focused != nullptr && focused->isVisible() &&
           std::any_of(parts_.begin(), parts_.end(), [&](const Part& part) {
               return part.layer == layer &&
                      (part.widget == focused || part.widget->isAncestorOf(focused));
           });
}

// A button isn't kept: coming back to "close" with the next press of the space bar would surprise.
void PanelStage::keepFocusOf(Layer layer) {
    QWidget* focused = window()->focusWidget();
    if (focused == nullptr || qobject_cast<QAbstractButton*>(focused) != nullptr) return;
    for (const Part& part : parts_) {
        if (part.layer == layer && (part.widget == focused || part.widget->isAncestorOf(focused))) {
            focus_[static_cast<std::size_t>(layer)] = focused;
        }
    }
}

void PanelStage::giveFocusTo(Layer layer) {
    QWidget* kept = focus_[static_cast<std::size_t>(layer)];
    QWidget* to = nullptr;
    if (kept != nullptr && kept->isVisible() && kept->isEnabled()) {
        to = kept;
    } else if (layer == Layer::File) {
        to = text_->isVisible() ? text_ : plot_;
    } else if (layer != Layer::None) {
        to = firstToType(layer == Layer::OnePoint ? onePoint_ : printMode_);
    }
    if (to != nullptr) to->setFocus(Qt::OtherFocusReason);
}

QRect PanelStage::plotArea() const {
    if (!file_.panel->isVisibleTo(this)) return rect();
    file_.panel->layout()->activate();
    return QRect(file_.body->mapTo(this, QPoint(0, 0)), file_.body->size());
}

void PanelStage::arrange() {
    if (plot_ == nullptr) return;
    if (background_ != nullptr) background_->setGeometry(rect());
    onePoint_->setGeometry(rect());
    file_.panel->setGeometry(rect());
    const QRect area = plotArea();
    const int side =
        std::min(plotSettings_->sizeHint().width() + 10, std::max(120, area.width() / 2));
    plot_->setGeometry(area.adjusted(8, 8, -side, -4));
    plotSettings_->setGeometry(area.right() - side + 1, area.top(), side, area.height());
    // Where the card is too high it scrolls, and its bar needs room, too.
    QSize card = printMode_->sizeHint();
    if (card.height() > height()) {
        card += QSize(style()->pixelMetric(QStyle::PM_ScrollBarExtent), 0);
        card = card.boundedTo(size());
    }
    printMode_->setGeometry(QRect(
        QPoint((width() - card.width()) / 2, std::max(0, (height() - card.height()) / 2 - 20)),
        card));
}

}  // namespace kelvo::desktop
