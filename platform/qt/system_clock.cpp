#include "platform/qt/system_clock.h"

#include "platform/qt/text.h"

#include <QDateTime>
#include <QLocale>

static QString shortDateForm()
{
    const QLocale system = QLocale::system();
    if (system.language() == QLocale::C)
        return "dd/MM/yyyy";
    QString form = system.dateFormat(QLocale::ShortFormat);
    if (!form.contains("yyyy"))
        form.replace("yy", "yyyy");
    return form;
}

Moment SystemClock::now()
{
    const QDateTime moment = QDateTime::currentDateTime();
    if (moment.date() != day_) {
        day_ = moment.date();
        dayText_ = heldText(QLocale::system().toString(day_, shortDateForm()));
    }
    const QTime time = moment.time();
    return {dayText_, time.hour(), time.minute(), time.second(), time.msec()};
}
