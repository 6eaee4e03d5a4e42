// The start of the program, with a window or without a screen.
#pragma once

#include "shell/frm_kelvo.h"

namespace kelvo {

// The program's start: reads the configuration (writing a new one and the sample data file
// where there is none), fills the list of recent files and loads the window. Fault 9 for a list
// of more than six entries of which none after the fifth is there (required).
void Main(frmKelvo& window);

}  // namespace kelvo
