#include "desktop/status_bar.h"

#include <QHBoxLayout>
#include <algorithm>
#include <utility>

#include "desktop/widget_book.h"

namespace kelvo::desktop {

namespace {

constexpr QSize kListSize(640, 260);

// A message in one line.
QString oneLine(const std::string& text) {
    return qt(text).simplified();
}

}  // namespace

StatusBar::StatusBar(StatusLine& line, QWidget* parent)
    : QWidget(parent),
      line_(line),
      sentence_(new ElidedLabel(this)),
      messages_(new QPushButton(this)),
      findings_(new QPushButton(this)),
      bringBack_(new QPushButton(QStringLiteral("되살리기"), this)),
      openFolder_(new QPushButton(QStringLiteral("폴더 열기"), this)),
      saving_(new ElidedLabel(this)),
      unsaved_(new QLabel(QStringLiteral("● 저장하지 않음"), this)),
      place_(new QLabel(this)),
      list_(new QListWidget(this)) {
    setObjectName(QStringLiteral("statusLine"));
    sentence_->setObjectName(QStringLiteral("statusSentence"));
    messages_->setObjectName(QStringLiteral("statusMessages"));
    findings_->setObjectName(QStringLiteral("statusFindings"));
    bringBack_->setObjectName(QStringLiteral("statusBringBack"));
    openFolder_->setObjectName(QStringLiteral("statusOpenFolder"));
    saving_->setObjectName(QStringLiteral("statusSaving"));
    unsaved_->setObjectName(QStringLiteral("unsavedMark"));
    place_->setObjectName(QStringLiteral("statusPlace"));
    list_->setObjectName(QStringLiteral("statusMessageList"));
    list_->setAccessibleName(QStringLiteral("변환할 때 나온 알림"));
    list_->setWindowFlag(Qt::Popup);
    bringBack_->setToolTip(QStringLiteral("저장하지 않고 닫힌 글을 다시 보입니다"));

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(8, 2, 8, 3);
    row->setSpacing(12);
    row->addWidget(sentence_, 3);
    row->addWidget(openFolder_);
    row->addWidget(messages_);
    row->addWidget(findings_);
    row->addWidget(bringBack_);
    row->addWidget(unsaved_);
    row->addWidget(saving_, 1);
    row->addWidget(place_);
    saving_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    for (QPushButton* button : {openFolder_, messages_, findings_, bringBack_}) {
        button->setAutoDefault(true);
        button->hide();
    }
    unsaved_->hide();

    connect(messages_, &QPushButton::clicked, this, &StatusBar::openMessages);
    connect(openFolder_, &QPushButton::clicked, this, [this] { emit folderWanted(folder_); });
    connect(findings_, &QPushButton::clicked, this, &StatusBar::openFindings);
    connect(list_, &QListWidget::itemActivated, this, &StatusBar::choose);
    connect(list_, &QListWidget::itemClicked, this, &StatusBar::choose);
    line_.onChange = [this] { refresh(); };
    refresh();
}

void StatusBar::refresh() {
    sentence_->setWholeText(qt(line_.sentence()));
    const auto count = line_.messages().size();
    if (line_.sentence() != sentenceOfFolder_) openFolder_->hide();
    messages_->setVisible(count > 0);
    messages_->setText(QStringLiteral("알림 %1개").arg(count));
}

void StatusBar::setFindings(const QString& dataFile, std::vector<RunMessage> findings) {
    checkedFile_ = dataFile;
    found_ = std::move(findings);
    findings_->setVisible(!found_.empty());
    findings_->setText(QStringLiteral("점검 %1개").arg(found_.size()));
    findings_->setToolTip(QStringLiteral("이 데이터 파일에서 살펴볼 줄"));
}

void StatusBar::offerFolder(const QString& folder) {
    folder_ = folder;
    sentenceOfFolder_ = line_.sentence();
    openFolder_->setToolTip(folder);
    openFolder_->show();
}

void StatusBar::openMessages() {
    openList(*messages_, qt(line_.dataFile()), line_.messages());
}

void StatusBar::openFindings() {
    openList(*findings_, checkedFile_, found_);
}

void StatusBar::openList(const QPushButton& button, const QString& dataFile,
                         const std::vector<RunMessage>& messages) {
    list_->clear();
    listFile_ = dataFile;
    for (const RunMessage& message : messages) {
        auto* item = new QListWidgetItem(
            QStringLiteral("%1행  %2").arg(message.line).arg(oneLine(message.text)), list_);
        item->setData(Qt::UserRole, static_cast<int>(message.line));
        item->setToolTip(qt(message.text));
    }
    if (list_->count() == 0) return;
    list_->setCurrentRow(0);
    list_->resize(kListSize.boundedTo(window()->size() - QSize(20, 60)));
    const QPoint corner = button.mapToGlobal(QPoint(button.width(), 0));
    list_->move(corner - QPoint(list_->width(), list_->height()));
    list_->show();
    list_->setFocus(Qt::PopupFocusReason);
}

void StatusBar::choose(const QListWidgetItem* item) {
    if (!list_->isVisible()) return;  // a click that also activates comes twice
    list_->hide();
    emit lineWanted(listFile_, item->data(Qt::UserRole).toInt());
}

void StatusBar::setPlace(const QString& place) {
    place_->setText(place);
}

void StatusBar::setUnsaved(bool on) {
    unsaved_->setVisible(on);
}

void StatusBar::setSaving(const QString& words, const QString& wholePath) {
    saving_->setWholeText(words);
    if (!wholePath.isEmpty()) saving_->setToolTip(wholePath);
}

}  // namespace kelvo::desktop
