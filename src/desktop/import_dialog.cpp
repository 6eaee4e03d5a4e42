#include "desktop/import_dialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "desktop/korean_faces.h"
#include "desktop/widget_book.h"

namespace kelvo::desktop {

namespace {

constexpr std::size_t kShownRows = 20;
constexpr qsizetype kShownLines = 12;
constexpr int kNone = -1;

QComboBox* boxOf(const QString& name, const QStringList& entries, int chosen, QWidget* parent) {
    auto* box = new QComboBox(parent);
    box->setObjectName(name);
    box->addItems(entries);
    box->setCurrentIndex(chosen);
    return box;
}

QString columnTitle(const PointList& list, std::size_t column) {
    QString number = QStringLiteral("%1열").arg(column + 1);
    if (column >= list.header.size() || list.header[column].empty()) return number;
    return number + QLatin1Char(' ') + qt(list.header[column]);
}

std::size_t columnIn(const QComboBox& box) {
    const int column = box.currentData().toInt();
    return column == kNone ? kNoListColumn : static_cast<std::size_t>(column);
}

}  // namespace

ImportDialog::ImportDialog(const PointList& list, const QString& from, QWidget* parent,
                           MakeLines make)
    : QDialog(parent), list_(list), make_(std::move(make)) {
    setObjectName(QStringLiteral("importDialog"));
    setWindowTitle(QStringLiteral("점 가져오기: ") + from);
    const ImportChoice guess = guessedChoice(list);
    system_ = boxOf(QStringLiteral("importSystem"),
                    {QStringLiteral("WGS84 경위도"), QStringLiteral("사용자 타원체 경위도"),
                     QStringLiteral("TM"), QStringLiteral("UTM")},
                    static_cast<int>(guess.system), this);
    angles_ = boxOf(QStringLiteral("importAngles"),
                    {QStringLiteral("도 (37.5925)"), QStringLiteral("도.분초 (37.35330000)")},
                    static_cast<int>(guess.angles), this);
    name_ = columnBox(QStringLiteral("importName"), guess.name, true);
    north_ = columnBox(QStringLiteral("importNorth"), guess.north, false);
    east_ = columnBox(QStringLiteral("importEast"), guess.east, false);
    height_ = columnBox(QStringLiteral("importHeight"), guess.height, true);
    rows_ = new QTableWidget(this);
    preview_ = new QPlainTextEdit(this);
    warnings_ = new QLabel(this);

    auto* left = new QFormLayout;
    left->addRow(QStringLiteral("좌표계(&S)"), system_);
    left->addRow(QStringLiteral("각도 표기(&A)"), angles_);
    left->addRow(QStringLiteral("이름(&N)"), name_);
    auto* right = new QFormLayout;
    right->addRow(QStringLiteral("X 또는 위도(&X)"), north_);
    right->addRow(QStringLiteral("Y 또는 경도(&Y)"), east_);
    right->addRow(QStringLiteral("높이(&H)"), height_);
    auto* choices = new QHBoxLayout;
    choices->addLayout(left);
    choices->addSpacing(16);
    choices->addLayout(right);

    rows_->setObjectName(QStringLiteral("importRows"));
    rows_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    rows_->setTabKeyNavigation(false);
    rows_->setAccessibleName(QStringLiteral("목록의 처음 몇 행"));
    preview_->setObjectName(QStringLiteral("importLines"));
    preview_->setReadOnly(true);
    preview_->setTabChangesFocus(true);
    preview_->setLineWrapMode(QPlainTextEdit::NoWrap);
    preview_->setFont(fixedPitchFont(font().pointSizeF()));
    preview_->setAccessibleName(QStringLiteral("데이터 파일에 들어갈 줄"));
    warnings_->setObjectName(QStringLiteral("importWarnings"));
    warnings_->setTextFormat(Qt::PlainText);
    warnings_->setWordWrap(true);
    auto* buttons = new QDialogButtonBox(this);
    accept_ = buttons->addButton(QStringLiteral("가져오기(&I)"), QDialogButtonBox::AcceptRole);
    accept_->setObjectName(QStringLiteral("importAccept"));
    buttons->addButton(QStringLiteral("취소"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* column = new QVBoxLayout(this);
    column->addWidget(rows_, 3);
    column->addLayout(choices);
    column->addWidget(new QLabel(QStringLiteral("데이터 파일에 들어갈 줄:"), this));
    column->addWidget(preview_, 2);
    column->addWidget(warnings_);
    column->addWidget(buttons);
    fillRows();
    for (QComboBox* box : {system_, angles_, name_, north_, east_, height_})
        connect(box, &QComboBox::currentIndexChanged, this, &ImportDialog::refresh);
    refresh();
    resize(680, 620);
}

QComboBox* ImportDialog::columnBox(const QString& name, std::size_t chosen, bool mayBeNone) {
    auto* box = new QComboBox(this);
    box->setObjectName(name);
    if (mayBeNone) box->addItem(QStringLiteral("없음"), kNone);
    for (std::size_t column = 0; column < list_.columns(); ++column)
        box->addItem(columnTitle(list_, column), static_cast<int>(column));
    const int wanted = chosen == kNoListColumn ? kNone : static_cast<int>(chosen);
    box->setCurrentIndex(std::max(box->findData(wanted), 0));
    return box;
}

void ImportDialog::fillRows() {
    const std::size_t shown = std::min(list_.rows.size(), kShownRows);
    rows_->setRowCount(static_cast<int>(shown));
    rows_->setColumnCount(static_cast<int>(list_.columns()));
    for (std::size_t column = 0; column < list_.columns(); ++column)
        rows_->setHorizontalHeaderItem(static_cast<int>(column),
                                       new QTableWidgetItem(columnTitle(list_, column)));
    for (std::size_t row = 0; row < shown; ++row) {
        for (std::size_t column = 0; column < list_.rows[row].size(); ++column)
            rows_->setItem(static_cast<int>(row), static_cast<int>(column),
                           new QTableWidgetItem(qt(list_.rows[row][column])));
    }
    rows_->resizeColumnsToContents();
}

ImportChoice ImportDialog::choice() const {
    return {.system = static_cast<System>(system_->currentIndex()),
            .angles = static_cast<ListAngles>(angles_->currentIndex()),
            .name = columnIn(*name_),
            .north = columnIn(*north_),
            .east = columnIn(*east_),
            .height = columnIn(*height_)};
}

void ImportDialog::refresh() {
    const ImportChoice chosen = choice();
    angles_->setEnabled(hasAngles(chosen.system));
    lines_ = make_(chosen);
    const QStringList all = qt(lines_.text).split(QLatin1Char('\n'));
    preview_->setPlainText(all.first(std::min(all.size(), kShownLines)).join(QLatin1Char('\n')) +
                           (all.size() > kShownLines ? QStringLiteral("\n...") : QString()));
    QStringList words{
        QStringLiteral("%1점을 %2행부터 넣습니다.").arg(lines_.points).arg(lines_.line + 1)};
    for (const std::string& warning : lines_.warnings) words << QStringLiteral("• ") + qt(warning);
    warnings_->setText(words.join(QLatin1Char('\n')));
    accept_->setEnabled(lines_.points > 0);
}

}  // namespace kelvo::desktop
