#include "trials/days/random_dialogs.h"

#include "trials/days/broken_file.h"

#include <vector>

std::string RandomDialogs::fileToOpen()
{
    std::vector<std::string> sheets;
    for (const auto& [path, bytes] : files_.contents)
        if (path.ends_with(".csv") && path != "/program/References/KeySetting.csv" &&
            (bytes.size() < 100000 || chance_.oneIn(20))) // the fullest sheet is slow
            sheets.push_back(path);
    if (sheets.empty() || chance_.oneIn(20))
        return "/home/missing.csv";
    std::string path = chance_.oneOf(sheets);
    if (!chance_.oneIn(4))
        return path;
    files_.contents["/home/broken.csv"] = brokenFile(files_.contents[path], chance_);
    return "/home/broken.csv";
}

Answer RandomDialogs::ask(std::string_view text, std::string_view title, Buttons buttons, Icon)
{
    whenOpened();
    if (text.find("used by another software") != std::string_view::npos)
        failureTold = true;
    if (buttons == Buttons::ok)
        return Answer::ok;
    if (purpose)
        return Answer::yes;
    const int answer = chance_.below(buttons == Buttons::yesNo ? 2 : 3);
    if (title == "Warning!!")
        staleSampleKept = answer != 0;
    return answer == 0 ? Answer::yes : answer == 1 ? Answer::no : Answer::cancel;
}

std::optional<std::string> RandomDialogs::chooseFileToSave(std::string_view /*title*/,
                                                           const std::string& proposed)
{
    whenOpened();
    if (purpose)
        return purpose;
    const std::string names[] = {"/home/core.csv", "/home/lake.csv", "/home/M\xC3\xB6\xC3\xB6r \"1\".csv",
                                 "/home/noname", proposed};
    if (chance_.oneIn(4))
        return std::nullopt;
    const std::string& name = chance_.oneOf(names);
    return name.empty() ? "/home/core.csv" : name;
}

std::optional<std::string> RandomDialogs::chooseFileToOpen()
{
    whenOpened();
    if (purpose)
        return purpose;
    return chance_.oneIn(5) ? std::nullopt : std::optional(fileToOpen());
}

std::optional<std::string> RandomDialogs::chooseFolder(std::string_view)
{
    whenOpened();
    return purpose || chance_.oneIn(3) ? std::nullopt : std::optional<std::string>("/home");
}

std::optional<std::string> RandomDialogs::choosePictureToSave(const std::string&)
{
    whenOpened();
    constexpr const char* names[] = {"/home/a.svg", "/home/a.PDF", "/home/a.png", "/home/a.txt", "/home/a"};
    return chance_.oneIn(4) ? std::nullopt : std::optional<std::string>(chance_.oneOf(names));
}

std::optional<std::string> RandomDialogs::chooseFigureToSave(const std::string& proposed)
{
    return choosePictureToSave(proposed);
}

std::optional<std::string> RandomDialogs::choosePagesToSave(const std::string& proposed)
{
    return choosePictureToSave(proposed);
}

std::optional<Colour> RandomDialogs::chooseColour(Colour)
{
    whenOpened();
    return chance_.oneIn(3) ? std::nullopt
                            : std::optional(RGB(static_cast<std::uint8_t>(chance_.below(256)), 0, 255));
}
