#include "platform/qt/QtTimeFormat.hpp"

#include "platform/ports/Calendar.hpp"

#include <QLocale>
#include <QTime>

namespace kestrelfen {

namespace {

QTime timeOf(Date date, const Calendar& calendar) {
    const CivilTime time = calendar.civilTime(date);
    return {time.hour, time.minute, time.second};
}

} // namespace

std::string QtTimeFormat::shortTime(Date date) const {
    return QLocale::system().toString(timeOf(date, calendar_), QLocale::ShortFormat).toStdString();
}

std::string QtTimeFormat::timeWithSeconds(Date date) const {
    // The long format of a locale has the seconds, and the zone's name, which is not wanted.
    QString format = QLocale::system().timeFormat(QLocale::LongFormat);
    format.remove(QLatin1Char('t'));
    return QLocale::system().toString(timeOf(date, calendar_), format.simplified()).toStdString();
}

} // namespace kestrelfen
