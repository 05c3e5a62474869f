#include "themes/win/zip_archive.h"

#include "win/text_convert.h"

#include <minizip/iowin32.h>

namespace ThemeZip {

namespace {

constexpr unsigned long kUtf8NameFlag = 1u << 11;
constexpr unsigned long kMadeByFat20 = 20; // host 0 (FAT), zip version 2.0
constexpr std::size_t kChunk = 64 * 1024;

// A name without the UTF-8 flag is in the zip format's own DOS code page (437).
std::string EntryName(std::string_view raw, unsigned long flag) {
    if (flag & kUtf8NameFlag)
        return std::string(raw);
    for (UINT codePage : {437u, static_cast<UINT>(CP_ACP)}) {
        int length = ::MultiByteToWideChar(codePage, 0, raw.data(), static_cast<int>(raw.size()), nullptr, 0);
        if (length > 0 || raw.empty()) {
            std::wstring wide(static_cast<std::size_t>(length), L'\0');
            ::MultiByteToWideChar(codePage, 0, raw.data(), static_cast<int>(raw.size()), wide.data(), length);
            return Win::Narrow(wide);
        }
    }
    return std::string(raw);
}

std::uint32_t DosDateOf(const FILETIME& utc) {
    FILETIME local{};
    WORD date = 0;
    WORD time = 0;
    if (!::FileTimeToLocalFileTime(&utc, &local) || !::FileTimeToDosDateTime(&local, &date, &time))
        return 0;
    return (static_cast<std::uint32_t>(date) << 16) | time;
}

zlib_filefunc64_def WideFileFunctions() {
    zlib_filefunc64_def functions{};
    ::fill_win32_filefunc64W(&functions);
    return functions;
}

} // namespace

ZipReader::ZipReader(std::string_view path) {
    zlib_filefunc64_def functions = WideFileFunctions();
    std::wstring wide = Win::Widen(path);
    zip_.reset(::unzOpen2_64(wide.c_str(), &functions));
}

std::optional<std::vector<ThemePackage::Entry>> ZipReader::Entries(std::uint64_t limit) {
    places_.clear();
    std::vector<ThemePackage::Entry> entries;
    unz_global_info64 global{};
    if (!zip_ || ::unzGetGlobalInfo64(zip_.get(), &global) != UNZ_OK)
        return std::nullopt;
    if (global.number_entry == 0)
        return entries;
    std::string name(65536, '\0'); // a zip's names are at most 65,535 bytes long
    int status = ::unzGoToFirstFile(zip_.get());
    while (status == UNZ_OK) {
        unz_file_info64 info{};
        unz64_file_pos position{};
        if (::unzGetCurrentFileInfo64(zip_.get(), &info, name.data(), static_cast<uLong>(name.size()), nullptr, 0,
                                      nullptr, 0) != UNZ_OK ||
            ::unzGetFilePos64(zip_.get(), &position) != UNZ_OK)
            return std::nullopt;
        std::string_view raw(name.data(), std::min<std::size_t>(info.size_filename, name.size()));
        entries.push_back(
            {EntryName(raw, info.flag), info.uncompressed_size, ThemePackage::IsLink(info.version, info.external_fa)});
        places_.push_back({position, info.uncompressed_size, info.dosDate});
        if (entries.size() > limit)
            return entries;
        status = ::unzGoToNextFile(zip_.get());
    }
    if (status != UNZ_END_OF_LIST_OF_FILE)
        return std::nullopt;
    return entries;
}

bool ZipReader::Open(std::size_t index) {
    return zip_ && index < places_.size() && ::unzGoToFilePos64(zip_.get(), &places_[index].position) == UNZ_OK &&
           ::unzOpenCurrentFile(zip_.get()) == UNZ_OK;
}

ZipReader::Result ZipReader::Extract(std::size_t index, std::string_view path) {
    if (!Open(index))
        return Result::Broken;
    Win::UniqueFileHandle out(
        ::CreateFileW(Win::Widen(path).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
    Result result = out ? Result::Ok : Result::NotWritten;
    std::vector<char> buffer(kChunk);
    std::uint64_t total = 0;
    // minizip reads no further than the declared size, so a lying header cannot flood the disk.
    while (result == Result::Ok) {
        int got = ::unzReadCurrentFile(zip_.get(), buffer.data(), static_cast<unsigned>(buffer.size()));
        if (got <= 0) {
            result = got < 0 ? Result::Broken : Result::Ok;
            break;
        }
        total += static_cast<std::uint64_t>(got);
        DWORD written = 0;
        if (!::WriteFile(out.get(), buffer.data(), static_cast<DWORD>(got), &written, nullptr) ||
            written != static_cast<DWORD>(got))
            result = Result::NotWritten;
    }
    // Closing checks the CRC once every byte was read.
    int closed = ::unzCloseCurrentFile(zip_.get());
    if (result == Result::Ok && (closed != UNZ_OK || total != places_[index].size))
        result = Result::Broken;
    FILETIME local{};
    FILETIME utc{};
    DWORD dosDate = places_[index].dosDate;
    if (result == Result::Ok && ::DosDateTimeToFileTime(HIWORD(dosDate), LOWORD(dosDate), &local) &&
        ::LocalFileTimeToFileTime(&local, &utc))
        ::SetFileTime(out.get(), nullptr, nullptr, &utc);
    return result;
}

std::optional<std::string> ZipReader::Read(std::size_t index, std::size_t maxBytes) {
    if (!Open(index))
        return std::nullopt;
    std::string bytes(maxBytes, '\0');
    std::size_t total = 0;
    int got = 0;
    while (total < maxBytes &&
           (got = ::unzReadCurrentFile(zip_.get(), bytes.data() + total, static_cast<unsigned>(maxBytes - total))) > 0)
        total += static_cast<std::size_t>(got);
    ::unzCloseCurrentFile(zip_.get());
    if (got < 0)
        return std::nullopt;
    bytes.resize(total);
    return bytes;
}

ZipWriter::ZipWriter(std::string_view path) {
    zlib_filefunc64_def functions = WideFileFunctions();
    std::wstring wide = Win::Widen(path);
    zip_.reset(::zipOpen2_64(wide.c_str(), APPEND_STATUS_CREATE, nullptr, &functions));
}

bool ZipWriter::Begin(std::string_view entryName, std::uint32_t dosDate, bool large) {
    zip_fileinfo info{};
    info.dosDate = dosDate;
    std::string name(entryName);
    return zip_ &&
           ::zipOpenNewFileInZip4_64(zip_.get(), name.c_str(), &info, nullptr, 0, nullptr, 0, nullptr, Z_DEFLATED,
                                     Z_DEFAULT_COMPRESSION, 0, -MAX_WBITS, DEF_MEM_LEVEL, Z_DEFAULT_STRATEGY, nullptr,
                                     0, kMadeByFat20, kUtf8NameFlag, large ? 1 : 0) == ZIP_OK;
}

bool ZipWriter::AddFile(std::string_view entryName, std::string_view filePath) {
    Win::UniqueFileHandle in(::CreateFileW(Win::Widen(filePath).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                           OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    FILETIME modified{};
    LARGE_INTEGER size{};
    if (!in || !::GetFileTime(in.get(), nullptr, nullptr, &modified) || !::GetFileSizeEx(in.get(), &size) ||
        !Begin(entryName, DosDateOf(modified), size.QuadPart >= 0xFFFFFFFFll))
        return false;
    std::vector<char> buffer(kChunk);
    DWORD got = 0;
    bool read = true;
    bool written = true;
    while (written && (read = ::ReadFile(in.get(), buffer.data(), static_cast<DWORD>(buffer.size()), &got, nullptr)) &&
           got > 0)
        written = ::zipWriteInFileInZip(zip_.get(), buffer.data(), got) == ZIP_OK;
    return ::zipCloseFileInZip(zip_.get()) == ZIP_OK && read && written;
}

bool ZipWriter::Close() {
    return zip_ && ::zipClose(zip_.release(), nullptr) == ZIP_OK;
}

} // namespace ThemeZip
