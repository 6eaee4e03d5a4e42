// The controls of the window itself: its menus, and the panel that shows a text file.
#pragma once

#include "form/form.h"

namespace kelvo {

struct MenuControls {
    explicit MenuControls(Form& owner) : form(owner) {}

    Form& form;

    Control& mnuFile = form.menu("mnuFile", "파일");
    // From index 7 on: the recent files, "-" and "종료".
    Control& mnuFileItem = form.menuArray(
        "mnuFileItem", "mnuFile",
        {"새파일 열기", "-", "기존파일 열기", "-", "저장", "다른이름으로 저장", "-"});

    Control& mnuCorr = form.menu("mnuCorr", "기존점에의한 보정");
    Control& mnuCorrEdit = form.menuItem("mnuCorrEdit", "mnuCorr", "보정점데이터 수정");
    Control& mnuCorrDum1 = form.menuItem("mnuCorrDum1", "mnuCorr", "-");
    Control& mnuCorrShow = form.menuItem("mnuCorrShow", "mnuCorr", "상세한보정결과보기");

    Control& mnuBatch = form.menu("mnuBatch", "일괄변환");
    Control& mnuBatchEdit = form.menuItem("mnuBatchEdit", "mnuBatch", "입력데이터수정");
    Control& mnuBatchGo = form.menuItem("mnuBatchGo", "mnuBatch", "변환하기");

    Control& mnuOne = form.menu("mnuOne", "대화식변환");
    Control& mnuOneOpen = form.menuItem("mnuOneOpen", "mnuOne", "입력창 열기");
    Control& mnuPrintDetail = form.menuItem("mnuPrintDetail", "mnuOne", "상세하게 저장");
    Control& mnuPrintBrief = form.menuItem("mnuPrintBrief", "mnuOne", "간략하게 저장");
    Control& mnuPrintClear = form.menuItem("mnuPrintClear", "mnuOne", "저장내용삭제");
    Control& mnuPrintShow = form.menuItem("mnuPrintShow", "mnuOne", "저장된 파일보기");

    Control& mnuOption = form.menu("mnuOption", "옵션");
    Control& mnuPrintMode = form.menuItem("mnuPrintMode", "mnuOption", "인쇄모드설정");
    Control& mnuPrinterSelect = form.menuItem("mnuPrinterSelect", "mnuOption", "Printer설정");
    Control& mnuEditorSelect = form.menuItem("mnuEditorSelect", "mnuOption", "Editor 설정");

    Control& mnuHelp = form.menu("mnuHelp", "Help");
    Control& mnuHelpFile = form.menuItem("mnuHelpFile", "mnuHelp", "도움말");
    Control& mnuAbout = form.menuItem("mnuAbout", "mnuHelp", "About");
};

struct ViewerControls {
    explicit ViewerControls(Form& owner) : form(owner) {}

    Form& form;

    Control& frmeFile = form.frame("frmeFile", "frmKelvo", "");
    Control& Richtxt = form.multiLineBox("Richtxt", "frmeFile");
    // Its caption is the state: "수치보기" while the plot is shown or nothing is, "그림보기" while
    // the numbers are.
    Control& cmdShow = form.button("cmdShow", "frmeFile", "수치보기");
    Control& cmdSave = form.button("cmdSave", "frmeFile", "저장");
    Control& cmdSaveAs = form.button("cmdSaveAs", "frmeFile", "다른이름으로 저장");
    Control& cmdPrint = form.button("cmdPrint", "frmeFile", "인쇄(&P)");
    Control& cmdPrintMode = form.button("cmdPrintMode", "frmeFile", "인쇄모드설정(&M)...");
    Control& cmdClose = form.button("cmdClose", "frmeFile", "닫기");
};

}  // namespace kelvo
