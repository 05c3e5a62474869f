// Program-wide routines around the main form: the single-instance check and the exit.
#pragma once

class Form1;
struct Program;

namespace Subroutines {

// Another instance runs: this one takes the title "unwanted instance", so that its own
// window no longer matches, and looks for the main form of the other by its class and
// the program's title. When found, that one is brought forward and the result is true:
// this process must end before it touches settings or the tray.
bool SingleInstance(Form1& form1);

// Shuts the program down: asks first unless quiet, then undoes what the program did to
// the desktop, removes the tray icon, closes the menu windows and unloads the forms,
// which ends the message loop and the process. A No leaves everything running.
void ExitProgram(Form1& form1, bool quiet);

// Undoes what the program did to the desktop, as the exit does, and nothing else: for a
// run that ends without its exit.
void PutBackDesktop(Form1& form1);

// Builds the table of internal commands anew; an eject row names a CD-ROM drive as one.
void BuildInternalCommandTable(Program& program);

} // namespace Subroutines
