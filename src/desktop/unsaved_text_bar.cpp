#include "desktop/unsaved_text_bar.h"

#include <QPushButton>

#include "desktop/widget_book.h"

namespace kelvo::desktop {

UnsavedTextBar::UnsavedTextBar(QWidget* parent) : QToolBar(parent), words_(new QLabel(this)) {
    setObjectName(QStringLiteral("unsavedTextBar"));
    setMovable(false);
    setContextMenuPolicy(Qt::PreventContextMenu);
    words_->setObjectName(QStringLiteral("unsavedTextWords"));
    words_->setTextFormat(Qt::PlainText);
    words_->setContentsMargins(6, 2, 12, 2);
    addWidget(words_);
    const auto button = [this](const QString& text, const QString& name,
                               void (UnsavedTextBar::*wish)()) {
        auto* made = new QPushButton(text, this);
        made->setObjectName(name);
        addWidget(made);
        connect(made, &QPushButton::clicked, this, wish);
    };
    button(QStringLiteral("되살리기"), QStringLiteral("unsavedTextBringBack"),
           &UnsavedTextBar::bringBack);
    button(QStringLiteral("닫기"), QStringLiteral("unsavedTextPutAside"),
           &UnsavedTextBar::putAside);
    hide();
}

void UnsavedTextBar::offer(const std::optional<UnsavedText>& text) {
    if (text) {
        words_->setText(QStringLiteral("저장하지 않고 끝난 글이 있습니다: %1 (%2)")
                            .arg(qt(text->path), qt(text->since)));
    }
    setVisible(text.has_value());
}

}  // namespace kelvo::desktop
