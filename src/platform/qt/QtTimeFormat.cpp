#include "platform/qt/QtTimeFormat.hpp"

#include "platform/ports/Calendar.hpp"

#include <QDate>
#include <QLocale>
#include <QTime>

namespace kestrelfen {

namespace {

QTime timeOf(Date date, const Calendar& calendar) {
    const CivilTime time = calendar.civilTime(date);
    return {time.hour, time.minute, time.second};
}

QDate dateOf(Date date, const Calendar& calendar) {
    const std::chrono::year_month_day day(calendar.civilTime(date).day);
    return {static_cast<int>(day.year()), static_cast<int>(static_cast<unsigned>(day.month())),
            static_cast<int>(static_cast<unsigned>(day.day()))};
}

bool putsMonthFirst(const QLocale& locale) {
    const QString format = locale.dateFormat(QLocale::ShortFormat);
    return format.indexOf(QLatin1Char('M')) < format.indexOf(QLatin1Char('d'));
}

} // namespace

std::string QtTimeFormat::shortTime(Date date) const {
    QString format = QLocale::system().timeFormat(QLocale::ShortFormat);
    // Some locales have no format without the seconds.
    for (const char* const seconds : {":ss", ".ss", ":s", ".s"}) {
        format.remove(QLatin1String(seconds));
    }
    return QLocale::system().toString(timeOf(date, calendar_), format).toStdString();
}

std::string QtTimeFormat::timeWithSeconds(Date date) const {
    // The long format of a locale has the seconds, and the zone's name, which is not wanted.
    QString format = QLocale::system().timeFormat(QLocale::LongFormat);
    format.remove(QLatin1Char('t'));
    return QLocale::system().toString(timeOf(date, calendar_), format.simplified()).toStdString();
}

std::string QtTimeFormat::weekday(Date date) const {
    return QLocale::system().toString(dateOf(date, calendar_), QStringLiteral("ddd")).toStdString();
}

std::string QtTimeFormat::shortDay(Date date) const {
    const QLocale locale = QLocale::system();
    const QString format = putsMonthFirst(locale) ? QStringLiteral("ddd MMM d") : QStringLiteral("ddd d MMM");
    return locale.toString(dateOf(date, calendar_), format).toStdString();
}

} // namespace kestrelfen
