#include "core/hundred_mark.h"

#include "core/main_screen.h"
#include "core/number_text.h"

bool markHundred()
{
    bool reached = false;
    for (int total = 0; total < 3; ++total) {
        const std::int32_t sum = wholeNumber(frmMain.Text3[total].text);
        frmMain.hundredMark[total] = frmMain.Option1[total].selected && sum != 0 && sum % 100 == 0;
        reached = reached || frmMain.hundredMark[total];
    }
    return reached;
}
