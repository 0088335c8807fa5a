#include "platform/services/clock.h"

namespace services::clock {

namespace {
QDate fixedDay;
}

QDate today()
{
    return fixedDay.isValid() ? fixedDay : QDate::currentDate();
}

QString todayText()
{
    return today().toString(QStringLiteral("dd/MM/yyyy"));
}

void setToday(QDate day)
{
    fixedDay = day;
}

void followSystem()
{
    fixedDay = {};
}

} // namespace services::clock
