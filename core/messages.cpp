#include "core/messages.h"

#include "platform/ports.h"

bool mayLoseCounts()
{
    return ports.dialogs->ask("This action will abort current data. Do you proceed?", "Caution!",
                              Buttons::yesNo, Icon::question) == Answer::yes;
}

void tellFileInUse()
{
    ports.dialogs->ask("The file is being used by another software. Please close the file and try again.",
                       "Error", Buttons::ok, Icon::exclamation);
}
