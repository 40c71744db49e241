#include "window/control_table.h"

std::vector<EntryRow> styleEntries(const char* menu, MenuEntry* record, void (*clicked)(int style),
                                   const int* chosen)
{
    std::vector<EntryRow> entries;
    for (int i = 0; i < static_cast<int>(std::size(diagramStyles)); ++i) {
        const DiagramStyle& style = diagramStyles[i];
        if (style.beginsGroup)
            entries.push_back({menu});
        entries.push_back({.menu = menu,
                           .name = style.name,
                           .caption = style.caption,
                           .record = record,
                           .clicked = {clicked, i},
                           .checkable = chosen != nullptr,
                           .chosen = chosen});
    }
    return entries;
}
