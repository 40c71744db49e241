#include "platform/qt/system_clock.h"

#include <QDateTime>

static std::string shownNumber(const QDate& day, QChar letter, qsizetype length)
{
    const int number = letter == 'd' ? day.day() : letter == 'M' ? day.month() : day.year();
    const std::string digits = std::to_string(number);
    return letter != 'y' && length >= 2 && number < 10 ? '0' + digits : digits;
}

std::string shortDate(const QLocale& locale, const QDate& day)
{
    const QString form =
        locale.language() == QLocale::C ? "dd/MM/yyyy" : locale.dateFormat(QLocale::ShortFormat);
    std::string text;
    std::string between;  // what stands after the last number, as far as it is Latin
    bool foreign = false; // there was more
    bool quoted = false;
    qsizetype length = 1;
    for (qsizetype at = 0; at < form.size(); at += length) {
        const QChar letter = form[at];
        length = 1;
        while (at + length < form.size() && form[at + length] == letter)
            ++length;
        if (letter == '\'') {
            quoted = quoted != (length % 2 == 1);
        } else if (!quoted && (letter == 'y' || letter == 'M' || (letter == 'd' && length <= 2))) {
            text += (text.empty() ? "" : between) + shownNumber(day, letter, length);
            between.clear();
            foreign = false;
        } else if (!quoted && QString("./- ").contains(letter)) {
            between += form.mid(at, length).toStdString();
        } else {
            foreign = true; // a sign of direction, a word for the year
        }
    }
    return foreign ? text : text + between;
}

Moment SystemClock::now()
{
    const QDateTime moment = QDateTime::currentDateTime();
    if (moment.date() != day_) {
        day_ = moment.date();
        dayText_ = shortDate(QLocale::system(), day_);
    }
    const QTime time = moment.time();
    return {dayText_, time.hour(), time.minute(), time.second(), time.msec()};
}
