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
    while (depth == 1 && !waiting.empty()) { // a handler may leave another one
        const auto handler = waiting.front();
        waiting.erase(waiting.begin());
        handler();
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
