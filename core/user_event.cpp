#include "core/user_event.h"

#include <algorithm>
#include <vector>

static int depth = 0;
static std::vector<void (*)()> waiting;

UserEvent::UserEvent()
{
    ++depth;
}

UserEvent::~UserEvent()
{
    if (depth == 1) {
        for (std::size_t i = 0; i < waiting.size(); ++i) // a handler may leave another one
            waiting[i]();
        waiting.clear();
    }
    --depth;
}

void atEndOfUserEvent(void (*handler)())
{
    if (depth == 0)
        handler();
    else if (std::find(waiting.begin(), waiting.end(), handler) == waiting.end())
        waiting.push_back(handler);
}
