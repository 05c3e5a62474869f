#include "desktop/command_table.h"

#include <string_view>

namespace CommandTable {

namespace {

// A row as written here: an empty icon carries the one of the row before.
struct RowSpec {
    std::string_view label;
    std::string_view icon;
    std::string_view command;
};

constexpr std::string_view kControlRunDll = "rundll32.exe shell32.dll,Control_RunDLL ";

constexpr RowSpec kInternalRows[] = {
    {"Run", "shell32.dll,24", "*0"},
    {"Copy Disk", "diskcopy.dll,", "rundll32.exe diskcopy.dll,DiskCopyRunDll"},
    {"Format Floppy Disk", "", "rundll32.exe shell32.dll,SHFormatDrive"},
    {"Find Files", "shell32.dll,22", "*1"},
    {"Find Computer", "shell32.dll,49", "*2"},
    {"Quick Log Out", "shell32.dll,44", "*7"},
    {"Quick Restart Windows", "shell32.dll,27", "*8"},
    {"Exit Tarvex", "", "*9"},
    {"Hide/Show Taskbar", "shell32.dll,39", "*10"},
    {"Control Panel", "shell32.dll,51", kControlRunDll},
    {"Dial-up Network", "shell32.dll,33", "*11"},
    {"My Computer", "shell32.dll,50", "*12"},
    {"Network Neighbourhood", "shell32.dll,13", "*13"},
    {"Tarvex Preferences", "", "*14"},
    {"Tarvex Help", "shell32.dll,23", "*15"},
    {"Restart Windows", "", "*16"},
    {"Eject CD-ROM", "shell32.dll,26", "*17"},
    {"Start Screen-Saver", "shell32.dll,25", "*18"},
    {"Minimize All Windows", "cool.dll,28", "*19"},
    {"Show Start Menu", "", "*20"},
    {"Standby Mode", "", "*21"},
    {"Windows Help", "", "*22"},
    {"Disconnect Modem", "modem.cpl,", "*23"},
    {"Log Out", "", "*24"},
    {"Close CD-ROM Door", "", "*25"},
    {"Hide/Show Desktop Icons", "shell32.dll,34", "*26"},
    {"Restore All Windows", "cool.dll,28", "*27"},
    {"Connect to the Internet", "rnanp.dll,0", "*28"},
    {"Show Desktop Folder", "", "*29"},
    {"Show Taskbar", "", "*30"},
    {"Hide Taskbar", "", "*31"},
    {"Show Desktop Icons", "", "*32"},
    {"Hide Desktop Icons", "", "*33"},
    {"Show Tray on Desktop", "", "*34"},
    {"Show Tray on TaskBar", "", "*35"},
    {"Show Tasklist on Desktop", "", "*36"},
    {"Hide Tasklist from Desktop", "", "*37"},
    {"Enable TV Task Management", "", "*38"},
    {"Disable TV Task Management", "", "*39"},
    {"Enable/Disable TV Task Management", "", "*40"},
    {"Quick Shutdown Windows", "", "*41"},
    {"Shutdown Windows", "", "*42"},
};

constexpr std::string_view kEjectIcon = "shell32.dll,26";
constexpr int kFirstEjectCode = 100;

// The applets: most are started as the control panel's applet of that name; a few
// rows are command lines of their own.
struct AppletSpec {
    std::string_view label;
    std::string_view applet;      // after "rundll32.exe shell32.dll,Control_RunDLL "
    std::string_view commandLine; // or the whole command line
};

constexpr AppletSpec kApplets[] = {
    {"Accessibility Properties", "access.cpl", ""},
    {"Add New Printer", "", "rundll32.exe shell32.dll,SHHelpShortcuts_RunDLL AddPrinter"},
    {"Add New Modem", "modem.cpl,,add", ""},
    {"Add-Remove Programs", "appwiz.cpl", ""},
    {"Briefcase", "", "rundll32.exe syncui.dll,Briefcase_Create"},
    {"Date & Time Properties", "timedate.cpl", ""},
    {"Display Properties", "desk.cpl", ""},
    {"Game Controlers", "joy.cpl", ""},
    {"Internet Options", "inetcpl.cpl", ""},
    {"Mail Postoffice Options", "wgpocpl.cpl", ""},
    {"Mouse Properties", "main.cpl @0", ""},
    {"Keyboard", "main.cpl @1", ""},
    {"Modem Properties", "modem.cpl", ""},
    {"Multimedia Properties", "mmsys.cpl", ""},
    {"ODBC32 Data Admin.", "odbccp32.cpl", ""},
    {"Password Properties", "password.cpl", ""},
    {"Power Management", "powercfg.cpl", ""},
    {"Printers", "main.cpl @2", ""},
    {"Regional Settings", "intl.cpl", ""},
    {"Scanners and Cameras", "sticpl.cpl", ""},
    {"Show Fonts", "main.cpl @3", ""},
    {"Sounds", "mmsys.cpl @1", ""},
    {"System Properties", "sysdm.cpl", ""},
    {"Telephony Properties", "telephon.cpl", ""},
    {"TweakUI", "tweakui.cpl", ""},
    {"Speech Properties", "speech.cpl", ""},
    {"Creative Labs AudioHQ", "audiohq.cpl", ""},
    {"Norton's LiveUpdate", "s32lucp1.cpl", ""},
    {"QuickTime Properties", "quicktime.cpl", ""},
    {"WindowBlinds Properties", "wbcpl.cpl", ""},
    {"PC Card Options", "devapps.cpl", ""},
    {"Port Options", "ports.cpl", ""},
    {"Server Options", "srvmgr.cpl", ""},
    {"UPS Options", "ups.cpl", ""},
    {"Console Options", "console.cpl", ""},
    {"Task Manager", "", "taskmgr.exe"},
    {"Mail Options", "mlcfg32.cpl", ""},
    {"Network Properties", "ncpa.cpl", ""},
    {"Mail and Fax Options", "netcpl.cpl", ""},
    {"Add New Hardware", "sysdm.cpl @1", ""},
    {"Add New Connection", "", "rundll32.exe rnaui.dll,RnaWizard"},
    {"User Properties", "inetcpl.cpl users", ""},
};

// The applets show the Control Panel's own icon.
constexpr std::string_view kAppletIcon = "shell32.dll,51";

class TableBuilder {
public:
    explicit TableBuilder(const std::string& systemFolder) : systemFolder_(systemFolder) {}

    void Add(std::string_view label, std::string_view icon, std::string command) {
        if (!icon.empty()) {
            lastIcon_ = systemFolder_ + "\\";
            lastIcon_ += icon;
        }
        rows_.push_back({std::string(label), lastIcon_, std::move(command)});
    }

    std::vector<CommandRow> Take() { return std::move(rows_); }

private:
    std::string systemFolder_;
    std::string lastIcon_;
    std::vector<CommandRow> rows_;
};

// "*" and the code, built up: GCC 12 warns falsely on "*" + a temporary string.
std::string EjectCommand(char letter) {
    std::string command = "*";
    command += std::to_string(kFirstEjectCode + (letter - 'A'));
    return command;
}

std::string EjectLabel(char letter, bool cdRom) {
    std::string label = cdRom ? "Eject CD-ROM " : "Eject Drive ";
    label += letter;
    label += ':';
    return label;
}

} // namespace

std::vector<CommandRow> BuildCommandTable(const std::string& systemFolder, const IsCdRomDrive& isCdRom) {
    TableBuilder table(systemFolder);
    for (const RowSpec& row : kInternalRows)
        table.Add(row.label, row.icon, std::string(row.command));
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        table.Add(EjectLabel(letter, isCdRom(letter)), kEjectIcon, EjectCommand(letter));
    }
    for (const AppletSpec& applet : kApplets) {
        std::string command = applet.commandLine.empty() ? std::string(kControlRunDll) + std::string(applet.applet)
                                                         : std::string(applet.commandLine);
        table.Add(applet.label, kAppletIcon, std::move(command));
    }
    return table.Take();
}

} // namespace CommandTable
