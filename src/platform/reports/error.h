#pragma once

#include <QString>

#include <exception>

namespace reports {

/// What makes a report impossible: a template or a formula that can't be read, a file that can't be written, a printer
/// that doesn't answer. `text` is a French sentence that can be shown as it stands. The store's own errors
/// pass through as store::Error.
class Error : public std::exception
{
public:
    explicit Error(const QString& text)
        : m_text(text)
        , m_what(text.toUtf8())
    {}

    const QString& text() const { return m_text; }
    const char* what() const noexcept override { return m_what.constData(); }

private:
    QString m_text;
    QByteArray m_what;
};

} // namespace reports
