// The menus the preferences window shows its preview with: a menu of a few items, one
// that opens a sub-menu and one with a command key, so that every painted part shows.
#pragma once

#include "menus/menu_records.h"

namespace Preferences {

inline constexpr const char* kSampleMenuName = "Sample Menu";
// The item the preview shows selected (1-based).
inline constexpr int kSampleSelectedItem = 2;

MenuTable SampleMenus();

} // namespace Preferences
