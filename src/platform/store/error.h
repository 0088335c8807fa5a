#pragma once

#include <QString>

#include <exception>

namespace store {

/// The one exception of the store. `number` is SQLite's extended result code, or one of the values of `Fault`
/// for what the store itself refuses; `text` is a French sentence that can be shown as it stands.
class Error : public std::exception
{
public:
    enum Fault
    {
        NotADatabase = 10001,
        ForeignFile,
        OtherVersion,
        MissingTable,
        UnknownField,
        NoCurrentRow,
        BadQuery,
        BadValue,   ///< a value that its field cannot hold
        Interrupted ///< a write after the transaction around it was undone, or on a database that is closed
    };

    Error(int number, const QString& text);

    int number() const { return m_number; }
    const QString& text() const { return m_text; }
    const char* what() const noexcept override { return m_what.constData(); }

private:
    int m_number;
    QString m_text;
    QByteArray m_what;
};

} // namespace store
