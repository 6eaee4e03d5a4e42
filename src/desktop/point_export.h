// 내보내기: the points of the last run as a file for other programs.
#pragma once

#include <QString>
#include <QWidget>

#include "desktop/status_bar.h"
#include "shell/frm_kelvo.h"

namespace kelvo::desktop {

class PointExport {
public:
    // All of them outlive it.
    PointExport(frmKelvo& program, StatusBar& status, Disk& disk, MessageBoxes& messages)
        : program_(program), status_(status), disk_(disk), messages_(messages) {}

    // Asks for a file, whose ending chooses the format, and writes it; the bottom line says what
    // went where, with a button that opens the folder. What fails is said in a box.
    void ask(QWidget* parent);

private:
    void write(const QString& path);
    void warn(const std::string& sentence);

    frmKelvo& program_;
    StatusBar& status_;
    Disk& disk_;
    MessageBoxes& messages_;
};

}  // namespace kelvo::desktop
