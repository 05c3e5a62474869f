// A fresh folder under the temporary directory, removed with its contents when the
// test ends.
#pragma once

#include <string>

namespace TestSupport {

class TempFolder {
public:
    TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder();

    const std::string& path() const { return path_; } // UTF-8, no trailing backslash
    std::string File(const std::string& name) const { return path_ + "\\" + name; }

private:
    std::string path_;
};

// Whole-file helpers on UTF-8 paths.
std::string ReadBytes(const std::string& path);
void WriteBytes(const std::string& path, const std::string& bytes);
bool FileExists(const std::string& path);

} // namespace TestSupport
