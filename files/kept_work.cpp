#include "files/kept_work.h"

#include "core/action_log.h"
#include "core/number_text.h"
#include "core/sheet_state.h"
#include "files/recovery.h"
#include "platform/ports.h"

#include <algorithm>
#include <cctype>
#include <vector>

namespace {

constexpr const char* unsavedWork = "Unsaved_work_";
constexpr std::size_t unsavedWorks = 10;

std::string folder()
{
    return ports.programFolder + "/References/Back up files";
}

/// "15.11.2026 14.05.09": a date with strokes would name a folder.
std::string stampForNames()
{
    std::string stamp = dateStamp(ports.clock->now());
    for (char& sign : stamp)
        if (std::isalnum(static_cast<unsigned char>(sign)) == 0 && sign != ' ' && sign != '-')
            sign = sign == '(' || sign == ')' ? '\0' : '.';
    stamp.erase(std::remove(stamp.begin(), stamp.end(), '\0'), stamp.end());
    return stamp;
}

} // namespace

std::optional<std::string> keepAmongBackups(const std::string& kind, std::string_view text,
                                            const std::string& ending)
{
    const std::vector<std::string> taken = ports.files->list(folder());
    const std::string stem = kind + "(" + stampForNames();
    std::string name = stem + ")" + ending;
    for (int number = 2; std::find(taken.begin(), taken.end(), name) != taken.end(); ++number)
        name = stem + " " + decimalText(number) + ")" + ending;
    if (!ports.files->replace(folder() + "/" + name, text))
        return std::nullopt;
    return name;
}

std::optional<std::string> keepUnsavedWork()
{
    return keepAmongBackups(unsavedWork, textOfUnsavedWork());
}

void pruneUnsavedWork()
{
    std::vector<std::string> kept;
    for (const std::string& name : ports.files->list(folder()))
        if (name.rfind(unsavedWork, 0) == 0)
            kept.push_back(name);
    for (std::size_t i = 0; i + unsavedWorks < kept.size(); ++i)
        ports.files->remove(folder() + "/" + kept[i]);
}

void dropUnsavedWork(const std::string& name)
{
    ports.files->remove(folder() + "/" + name);
}
