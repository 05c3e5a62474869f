// The help pages shipped beside the exe: every link leads to a page that is there, and
// the page of internal commands names every command of the table by its code and label.
#include "desktop/command_table.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>
#include <string>

namespace {

const std::filesystem::path kHelpFolder = std::filesystem::path(TARVEX_SOURCE_DIR) / "resources/help/Tv2";

std::string Read(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    std::stringstream text;
    text << stream.rdbuf();
    return text.str();
}

} // namespace

TEST(HelpPages, TheFirstPageIsThereAndEveryLinkLeadsToAPageThatIs) {
    ASSERT_TRUE(std::filesystem::exists(kHelpFolder / "Tarvex.htm"));
    const std::regex link(R"re((?:href|src)="([^"#:]+)")re");
    int links = 0;
    for (const auto& entry : std::filesystem::directory_iterator(kHelpFolder)) {
        std::string page = Read(entry.path());
        for (std::sregex_iterator it(page.begin(), page.end(), link), end; it != end; ++it, ++links)
            EXPECT_TRUE(std::filesystem::exists(kHelpFolder / (*it)[1].str()))
                << entry.path().filename() << " links to " << (*it)[1] << ", which is not there";
    }
    EXPECT_GT(links, 30) << "each page has the pages' bar";
}

TEST(HelpPages, TheCommandsPageNamesEveryInternalCommand) {
    std::string page = Read(kHelpFolder / "commands.htm");
    int commands = 0;
    for (const CommandTable::CommandRow& row : CommandTable::BuildCommandTable("C:\\Windows\\System32", [](char) { return false; })) {
        if (row.command.size() < 2 || row.command[0] != '*' || std::stoi(row.command.substr(1)) >= 100)
            continue; // applets and eject rows are listed as groups
        ++commands;
        std::string cell = "<code>" + row.command + "</code></td><td>" + row.label + "</td>";
        EXPECT_NE(page.find(cell), std::string::npos) << row.command << " " << row.label;
    }
    EXPECT_EQ(commands, 39);
}
