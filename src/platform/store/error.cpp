#include "platform/store/failure.h"

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace store {

Error::Error(int number, const QString& text)
    : m_number(number)
    , m_text(text)
    , m_what(text.toUtf8())
{}

namespace {

QString sentence(int code)
{
    if (code == SQLITE_READONLY_DBMOVED)
        return u"Le fichier « %1 » a été déplacé ou effacé pendant le travail : plus rien n'y est enregistré"_s;
    switch (code & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return u"Le fichier « %1 » est déjà ouvert par un autre programme"_s;
    case SQLITE_READONLY:
        return u"Le fichier « %1 » est en lecture seule"_s;
    case SQLITE_FULL:
        return u"Le disque est plein : le fichier « %1 » n'a pas pu être écrit"_s;
    case SQLITE_CANTOPEN:
        return u"Le fichier « %1 » ne peut pas être ouvert"_s;
    case SQLITE_CORRUPT:
        return u"Le fichier « %1 » est endommagé"_s;
    case SQLITE_NOTADB:
        return u"Le fichier « %1 » n'est pas une base de données"_s;
    case SQLITE_PERM:
    case SQLITE_AUTH:
        return u"L'accès au fichier « %1 » est refusé"_s;
    case SQLITE_IOERR:
        return u"Le fichier « %1 » n'a pas pu être lu ou écrit"_s;
    case SQLITE_NOMEM:
        return u"La mémoire manque pour travailler sur le fichier « %1 »"_s;
    case SQLITE_CONSTRAINT:
        return u"Une valeur est refusée par le fichier « %1 »"_s;
    default:
        return u"Le travail sur le fichier « %1 » a échoué"_s;
    }
}

} // namespace

void failFile(int code, const QString& detail, const QString& path)
{
    const bool foreign = (code & 0xff) == SQLITE_NOTADB;
    const QString text = sentence(code).arg(path) + u" (erreur SQLite %1 : %2)"_s.arg(code).arg(detail);
    throw Error(foreign ? int(Error::NotADatabase) : code, text);
}

void failFile(sqlite3* connection, const QString& path)
{
    failFile(sqlite3_extended_errcode(connection), QString::fromUtf8(sqlite3_errmsg(connection)), path);
}

void failQuery(const QString& query, const QString& why)
{
    throw Error(Error::BadQuery, u"La requête « %1 » est incorrecte : %2"_s.arg(query.simplified(), why));
}

} // namespace store
