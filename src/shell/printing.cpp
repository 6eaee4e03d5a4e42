#include "shell/printing.h"

#include "plot/print_text.h"

namespace kelvo {

Printing::Printing(const ViewerControls& viewerControls, const MenuControls& menus,
                   PrintModePanel& printMode, ResultViewer& viewer, PointPictures& pictures,
                   CommonDialog& cmd, ProgramState& state, const Services& services)
    : printMode_(printMode),
      viewer_(viewer),
      pictures_(pictures),
      cmd_(cmd),
      state_(state),
      services_(services) {
    viewerControls.cmdPrint.onClick = [this] { cmdPrint_Click(); };
    viewerControls.cmdPrintMode.onClick = [this] { printMode_.mnuPrintMode_Click(); };
    menus.mnuPrintMode.onClick = [this] { printMode_.mnuPrintMode_Click(); };
    menus.mnuPrinterSelect.onClick = [this] { mnuPrinterSelect_Click(); };
}

void Printing::cmdPrint_Click() {
    if (!viewer_.numbersOnView()) {
        pictures_.drawOnPrinter();
        return;
    }
    const std::string copy = "kelvo.tmp";
    viewer_.saveCopy(copy);
    PrintFile(copy);
}

void Printing::mnuPrinterSelect_Click() {
    try {
        cmd_.showPrinter();
    } catch (const RuntimeFault&) {
        // Cancelled, or there is no printer: the choice stays as it is.
    }
}

void Printing::PrintFile(const std::string& name) {
    const PrintModeControls& on = printMode_.controls();
    const PrintMode mode{.fast = on.optFast.value(),
                         .LeftMargin = printMode_.LeftMargin(),
                         .font = on.cmbFont.selectedItem(),
                         .style = on.cmbFontStyle.index(),
                         .size = on.cmbSize.selectedItem(),
                         .strikethru = on.chk1.value(),
                         .underline = on.chk2.value()};
    PrintServices services{.disk = services_.disk,
                           .messages = services_.messages,
                           .programs = services_.programs,
                           .rawPrinter = services_.rawPrinter,
                           .pointer = services_.pointer,
                           .printer = services_.surfaces.printer(),
                           .applicationFolder = state_.applicationFolder,
                           .LineBuf = state_.conversion.fields.LineBuf};
    kelvo::PrintFile(name, mode, services);
}

}  // namespace kelvo
