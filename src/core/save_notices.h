// What the user is told when a file the program keeps could not be saved. A save that
// failed once (a full disk, a read-only file) fails again at every attempt, so each kind
// of file is told of once a run: a box at every attempt would bury the user.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace SaveNotices {

enum class Kind { MenuFile, SettingsFile };

inline constexpr std::string_view kTitle = "Tarvex Warning";

// What could not be saved, why (`problem`, which names the file), and that the old file
// stays: a save replaces the file whole or not at all.
std::string FailureText(Kind kind, std::string_view problem);

class Told {
public:
    // Shows the failure in a warning box unless a save of the same kind failed before in
    // this run.
    void Tell(Kind kind, std::string_view problem);

    // True the first time a save of the kind failed; the caller then tells it its own way.
    bool First(Kind kind);

private:
    std::array<bool, 2> told_{};
};

} // namespace SaveNotices
