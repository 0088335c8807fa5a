#pragma once

#include <QDate>
#include <QString>

/// Today's date, which appears in most dialogs. A test, or the demonstration, can set it.
namespace services::clock {

QDate today();
/// Today as dd/MM/yyyy, the form in which the program shows and types dates.
QString todayText();

void setToday(QDate day);
void followSystem();

} // namespace services::clock
