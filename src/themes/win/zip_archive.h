// Zip files through minizip, on UTF-8 paths: a reader that lists a zip's entries and
// unpacks them one by one, and a writer that packs files. Both own their minizip handle
// and close it when they go.
#pragma once

#include "themes/theme_package.h"
#include "win/handles.h"

#include <windows.h>

#include <minizip/unzip.h>
#include <minizip/zip.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ThemeZip {

namespace Detail {
inline void CloseUnzip(unzFile file) {
    ::unzClose(file);
}
inline void CloseZip(zipFile file) {
    ::zipClose(file, nullptr);
}
} // namespace Detail

using UniqueUnzip = Win::UniqueHandle<unzFile, Detail::CloseUnzip>;
using UniqueZip = Win::UniqueHandle<zipFile, Detail::CloseZip>;

class ZipReader {
public:
    // Opens the zip; opened() is false when the file is missing or not a zip.
    explicit ZipReader(std::string_view path);
    bool opened() const { return static_cast<bool>(zip_); }

    // The entries of the central directory in their order, at most limit + 1 of them (one
    // more than a caller allows tells it there are too many). None when the directory is
    // damaged.
    std::optional<std::vector<ThemePackage::Entry>> Entries(std::uint64_t limit);

    enum class Result { Ok, Broken, NotWritten };
    // Unpacks entry index of the last listing into a new file with the entry's date.
    // Broken when its data is damaged or runs past its declared size; the file is then
    // left for the caller to remove.
    Result Extract(std::size_t index, std::string_view path);
    // At most maxBytes of an entry's data; none when it cannot be read.
    std::optional<std::string> Read(std::size_t index, std::size_t maxBytes);

private:
    bool Open(std::size_t index);

    struct Place {
        unz64_file_pos position;
        std::uint64_t size;
        unsigned long dosDate;
    };
    UniqueUnzip zip_;
    std::vector<Place> places_; // of each listed entry
};

class ZipWriter {
public:
    // Creates the zip (replacing a file of that name); created() is false when it cannot.
    explicit ZipWriter(std::string_view path);
    bool created() const { return static_cast<bool>(zip_); }

    // Adds an entry under the name (UTF-8, flagged so) holding a file's contents, with
    // the file's date. False when it could not be written.
    bool AddFile(std::string_view entryName, std::string_view filePath);
    // Writes the central directory; false when the zip could not be finished.
    bool Close();

private:
    bool Begin(std::string_view entryName, std::uint32_t dosDate, bool large);

    UniqueZip zip_;
};

} // namespace ThemeZip
