// Form2's display list: the items of a menu, or the listing of a folder.
#include "menuwindow/win/form2.h"

#include "desktop/win/task_windows.h"
#include "menus/win/folder_enumeration.h"

using namespace MenuWindow;

// A window of any other kind lists no items.
DisplayList Form2::BuildItemList() {
    const CascadeRec& record = Record();
    switch (SourceOf(record.kind)) {
    case ListSource::MenuItems:
        return MenuItemsList(menus_, record.menuNumber);
    case ListSource::Folder:
        return FolderList(FolderEnumeration::ListFolder(FolderRequestOf(record), settings_));
    case ListSource::TaskList:
        return TaskList(TaskWindows::ListTasks());
    case ListSource::None:
        break;
    }
    return {};
}
