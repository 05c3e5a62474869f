#include "prefs/application_picker.h"

#include "core/text.h"

namespace Preferences {

PickedApplication PickApplication(std::uintptr_t window, const Hotspots::WindowLookup& lookup,
                                  const std::function<bool(std::uintptr_t)>& ours) {
    // A hotspot's rectangle counts from its top-level window, whatever child is under the cursor.
    std::uintptr_t topLevel = window;
    for (std::uintptr_t parent = window ? lookup.parent(window) : 0; parent != 0 && parent != lookup.desktop;
         parent = lookup.parent(topLevel))
        topLevel = parent;
    if (topLevel == 0 || topLevel == lookup.desktop)
        return {std::string(Hotspots::kDesktopApp), {}};
    std::string title = lookup.title(topLevel);
    if (ours(topLevel) || Text::ToLower(title) == Hotspots::kOwnTitle)
        return {{}, "Tarvex's own windows fire no hotspot: let go over another window"};
    if (title.empty() || title == Hotspots::kShellDesktopTitle)
        return {std::string(Hotspots::kDesktopApp), {}};
    return {title, {}};
}

std::string PickingNote(const PickedApplication& picked) {
    if (picked.app.empty())
        return picked.refusal;
    return std::string("Let go to take \"").append(picked.app).append("\"");
}

} // namespace Preferences
