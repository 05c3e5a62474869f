// What start-up asks the system: fonts, folders, version, screen and sound facts,
// and the few file-system calls it needs.
#pragma once

#include "core/program_values.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace SystemValues {

CaptionFont ReadCaptionFont();

std::string WindowsFolder();
std::string SystemFolder();
bool IsNT();

struct TwipsPerPixel {
    std::int16_t x = 15;
    std::int16_t y = 15;
};
TwipsPerPixel ReadTwipsPerPixel();

bool SoundAvailable();

std::string ExecutableFolder();
std::string CurrentDirectory();

bool FileExists(std::string_view path);
bool FolderExists(std::string_view path);
// Creates a folder; failures (one that exists already included) are not reported.
void CreateFolder(std::string_view path);

} // namespace SystemValues
