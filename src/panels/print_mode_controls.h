// The controls of the print mode panel.
#pragma once

#include "form/form.h"

namespace kelvo {

struct PrintModeControls {
    explicit PrintModeControls(Form& owner) : form(owner) {}

    Form& form;

    Control& frmePrintMode = form.frame("frmePrintMode", "frmKelvo", "인쇄모드설정");
    Control& optFast =
        form.option("optFast", "frmePrintMode", "print mode", "빠른 인쇄 ‥‥‥‥‥ [ DOS 인쇄 ]");
    Control& txtLmr = form.textBox("txtLmr", "frmePrintMode", "왼쪽 마진은?");
    Control& Option1 =
        form.option("Option1", "frmePrintMode", "print mode", "사용자 인쇄 ‥‥‥‥ [ WINDOWS 인쇄 ]");
    Control& cmbFont = form.combo("cmbFont", "frmePrintMode", "");
    Control& cmbFontStyle = form.combo("cmbFontStyle", "frmePrintMode", "");
    Control& cmbSize = form.combo("cmbSize", "frmePrintMode", "");
    Control& chk1 = form.check("chk1", "frmePrintMode", "취소선");
    Control& chk2 = form.check("chk2", "frmePrintMode", "밑줄");
    Control& cmdModeSave = form.button("cmdModeSave", "frmePrintMode", "확인(&O)");
    Control& cmdModeCancel = form.button("cmdModeCancel", "frmePrintMode", "취소(&Z)");
};

}  // namespace kelvo
