#include "desktop/work_menu.h"

#include <QMenu>
#include <utility>

namespace kelvo::desktop {

WorkMenu::WorkMenu(QWidget* parent) : QToolButton(parent) {
    setObjectName(QStringLiteral("work"));
    setText(QStringLiteral("작업(&W)"));
    setToolTip(QStringLiteral("결과 파일, 여러 데이터 파일, 점 내보내기와 가져오기, 점의 복사"));
    setPopupMode(QToolButton::InstantPopup);
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("workMenu"));
    setMenu(menu);
}

void WorkMenu::add(const QString& words, const QString& name, std::function<void()> work) {
    QAction* action = menu()->addAction(words);
    action->setObjectName(name);
    connect(action, &QAction::triggered, this, [work = std::move(work)] { work(); });
}

void WorkMenu::addSeparator() {
    menu()->addSeparator();
}

}  // namespace kelvo::desktop
