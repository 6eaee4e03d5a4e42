// Printing a text file: fast, as plain lines handed to the raw printer, or in a font, drawn line
// by line on the printer's sheets.
#pragma once

#include <cstdint>
#include <string>

#include "common/disk.h"
#include "common/ports.h"
#include "form/services.h"
#include "plot/surface.h"

namespace kelvo {

// What the print mode panel says.
struct PrintMode {
    bool fast = false;            // optFast on; otherwise the user print (Option1)
    std::int16_t LeftMargin = 0;  // blanks in front of each line of the fast print
    std::string font = "굴림체";  // the text of cmbFont
    int style = 0;                // the index of cmbFontStyle: plain, italic, bold, both
    std::string size = "10";      // the text of cmbSize, points
    bool strikethru = false;      // chk1
    bool underline = false;       // chk2
};

struct PrintServices {
    Disk& disk;
    MessageBoxes& messages;
    ProgramStarter& programs;
    RawPrinter& rawPrinter;  // gets a path without a folder for a file of the current folder
    BusyPointer& pointer;
    Surface& printer;
    std::string applicationFolder;  // without a trailing separator; `code.bat` goes there
    std::string& LineBuf;           // the shared line of the tokeniser; holds the last line read
};

// Prints the text file. The last three characters of its name, in capitals, decide about pages
// (DAT, fast print) and about a new sheet at each dash line (OUT, user print); a shorter name is
// fault 5. A file that can't be opened is reported in a message box, and nothing is printed.
//
// Fast print: the file as it stands, or a copy of it named `temp` in the current folder with the
// margin in front of each line and form feeds, goes to the raw printer; `code.bat` is written as
// well (required).
//
// User print: 62 lines to the sheet, each sheet a print job of its own. A line that is a form
// feed takes the three lines after it along; fault 62 if the file ends among them, but as the
// last line it ends the printing.
void PrintFile(const std::string& fileName, const PrintMode& mode, PrintServices& services);

}  // namespace kelvo
