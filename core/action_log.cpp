#include "core/action_log.h"

#include "core/main_screen.h"
#include "core/sheet_state.h"

static void appendTwoDigits(std::string& text, int number)
{
    text += static_cast<char>('0' + number / 10 % 10);
    text += static_cast<char>('0' + number % 10);
}

static std::string timeText(const Moment& moment)
{
    std::string text;
    appendTwoDigits(text, moment.hour);
    text += ':';
    appendTwoDigits(text, moment.minute);
    text += ':';
    appendTwoDigits(text, moment.second);
    return text;
}

std::string TimeStamp(const Moment& moment)
{
    std::string text = timeText(moment) + ':';
    appendTwoDigits(text, moment.millisecond / 10);
    return text;
}

std::string logTime(const Moment& moment)
{
    return moment.date + "_" + TimeStamp(moment);
}

std::string dateStamp(const Moment& moment)
{
    return moment.date + " (" + timeText(moment) + ")";
}

void StampAction()
{
    ++sheet.ActionCount;
    sheet.ActionText.push_back(frmMain.Combo1.text);
    sheet.ActionTime.push_back(logTime(ports.clock->now()));
}

void logAction(std::string_view line)
{
    frmMain.Combo1.items.emplace_back(line);
    frmMain.Combo1.text = line;
    frmMain.Text7.text += "\r\n";
    frmMain.Text7.text += line;
    StampAction();
}
