// A program folder of the test's own in the temporary directory: tarvex2.exe and, when
// the build has it, DefMenu.ini copied from beside the test program, an empty menu file
// (TvMenus.ini, as a program that has run before has one, so that start-up does not
// offer the default menus), plus whatever files a test writes. Removed with its
// contents when the test is done.
#pragma once

#include "support/temp_folder.h"

#include <string>
#include <string_view>

namespace E2e {

// A temporary folder with the file helpers the end-to-end tests use.
class TempFolder {
public:
    const std::string& path() const { return folder_.path(); } // UTF-8, no trailing backslash
    std::string File(std::string_view name) const;
    bool Exists(std::string_view name) const;
    bool IsFolder(std::string_view name) const;
    std::string ReadBytes(std::string_view name) const;
    void WriteBytes(std::string_view name, std::string_view bytes) const;

private:
    TestSupport::TempFolder folder_;
};

class ProgramFolder : public TempFolder {
public:
    ProgramFolder();

    // True when the program was copied in.
    bool ready() const { return ready_; }
    std::string ExePath() const { return File("tarvex2.exe"); }

    // Writes Helmora.ini as the program writes its files: UTF-16LE with a byte-order
    // mark. The lines are UTF-8, joined with CR LF.
    void WriteSettings(std::string_view lines) const;
    // Writes TvMenus.ini the same way.
    void WriteMenus(std::string_view lines) const;

    // A value of Helmora.ini as the profile functions read it; "?" for a missing key.
    std::string ReadValue(std::string_view section, std::string_view key) const;
    std::string ReadSetting(std::string_view key) const { return ReadValue("TARVEX", key); }

private:
    bool ready_ = false;
};

// The folder of the running test program, where the build puts tarvex2.exe as well.
std::string TestProgramFolder();

} // namespace E2e
