// What a list of points is, asked with its first rows on view and the lines that come of them.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableWidget>
#include <functional>

#include "shell/imported_points.h"

namespace kelvo::desktop {

class ImportDialog final : public QDialog {
    Q_OBJECT

public:
    using MakeLines = std::function<ImportedLines(const ImportChoice& choice)>;

    // `from` says in words where the list comes from; `make` is asked after each change. The list
    // outlives the dialog.
    ImportDialog(const PointList& list, const QString& from, QWidget* parent, MakeLines make);

    // As the choice stands now.
    [[nodiscard]] const ImportedLines& lines() const { return lines_; }

private:
    void fillRows();
    [[nodiscard]] QComboBox* columnBox(const QString& name, std::size_t chosen, bool mayBeNone);
    [[nodiscard]] ImportChoice choice() const;
    void refresh();

    const PointList& list_;
    MakeLines make_;
    ImportedLines lines_;
    QComboBox* system_;
    QComboBox* angles_;
    QComboBox* name_;
    QComboBox* north_;
    QComboBox* east_;
    QComboBox* height_;
    QTableWidget* rows_;
    QPlainTextEdit* preview_;
    QLabel* warnings_;
    QPushButton* accept_ = nullptr;
};

}  // namespace kelvo::desktop
