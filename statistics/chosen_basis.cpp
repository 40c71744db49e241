#include "statistics/chosen_basis.h"

#include "core/main_screen.h"

int chosenBasis()
{
    for (const int subtotal : {1, 2})
        if (frmMain.Option1[subtotal].selected)
            return subtotal;
    return 0;
}

std::string sumName(int total)
{
    std::string name = frmMain.Label2[total].caption;
    if (!name.empty() && name.back() == ':')
        name.pop_back();
    return name;
}
