// 가져오기: a list of points becomes lines of the data file on view.
#pragma once

#include <QString>
#include <QWidget>
#include <functional>

#include "convert/point_list.h"
#include "desktop/widget_book.h"
#include "shell/frm_kelvo.h"

namespace kelvo::desktop {

class PointImport {
public:
    // All of them outlive it.
    PointImport(frmKelvo& program, WidgetBook& book, Disk& disk, MessageBoxes& messages)
        : program_(program), book_(book), disk_(disk), messages_(messages) {}

    // Asks for a file, or takes the text on the clipboard; asks for system and columns, and puts
    // the lines in at the caret, one step for undo. Without a data file on view, and for a list
    // that can't be read, a box says so.
    void askForFile(QWidget* parent);
    void takeClipboard(QWidget* parent);

private:
    [[nodiscard]] bool dataFileIsOnView();
    void take(QWidget* parent, const QString& from, const std::function<PointList()>& read);
    void insert(QWidget* parent, const QString& from, const PointList& list);
    void warn(const std::string& sentence);

    frmKelvo& program_;
    WidgetBook& book_;
    Disk& disk_;
    MessageBoxes& messages_;
};

}  // namespace kelvo::desktop
