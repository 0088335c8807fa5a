#include "platform/services/telephone.h"

#include <QDesktopServices>
#include <QUrl>

#include <utility>

namespace services::telephone {

namespace {

Dialler& dialler()
{
    static Dialler current;
    return current;
}

} // namespace

QString dialable(const QString& number)
{
    constexpr int shortest = 3;
    const QString trimmed = number.trimmed();
    if (trimmed.size() <= shortest)
        return trimmed;
    QString kept = trimmed.left(1);
    for (const QChar c : QStringView(trimmed).mid(1)) {
        if (c >= u'0' && c <= u'9')
            kept += c;
    }
    return kept;
}

bool call(const QString& number)
{
    const QString dialled = dialable(number);
    if (dialler())
        return dialler()(dialled);
    QUrl address;
    address.setScheme(QStringLiteral("tel"));
    address.setPath(dialled);
    return QDesktopServices::openUrl(address);
}

Dialler setDialler(Dialler next)
{
    return std::exchange(dialler(), std::move(next));
}

} // namespace services::telephone
