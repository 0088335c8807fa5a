#pragma once

#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

#include <ostream>

// GoogleTest finds these by the type's namespace: texts appear in a failure as they read.
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QStringList& texts, std::ostream* out)
{
    *out << '[';
    for (const QString& text : texts)
        *out << '"' << text.toStdString() << "\" ";
    *out << ']';
}
