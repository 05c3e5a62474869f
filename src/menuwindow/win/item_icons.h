// The icons of a menu window's items, taken when a button first needs its icon and
// held until the window lets them go (DestroyIconHandles) or unloads.
#pragma once

#include "menuwindow/layout/item_list.h"
#include "win/handles.h"

#include <windows.h>

#include <optional>
#include <vector>

namespace MenuWindow {

// An icon of a file at a size: one taken out of the file by its index, or the shell's
// icon for the file or folder. Empty when there is none.
Win::UniqueIcon LoadItemIcon(const IconSource& source, int size);

class ItemIcons {
public:
    // Makes room for a list of count items at the size; the icons held stay when neither
    // changed (the same list repainted), and go otherwise.
    void Reset(int count, int size);

    // The icon of an item (1-based), taken on the first call; null when it has none.
    HICON Get(int item, const DisplayEntry& entry);

    // Lets an item's icon go: its entry changed.
    void Forget(int item);

    // Lets every icon go.
    void Clear();

    int Held() const;

private:
    std::vector<std::optional<Win::UniqueIcon>> icons_; // empty optional: not asked for yet
    int size_ = 0;
};

} // namespace MenuWindow
