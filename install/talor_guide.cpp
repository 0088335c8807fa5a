// Lays the user's guide, docs/guide.md, out as Guide_TALOR.pdf.

#include "guide.h"

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QTextStream>

using namespace Qt::StringLiterals;
using namespace talor;

namespace {

int echouer(const QString& raison)
{
    QTextStream(stderr) << raison << Qt::endl;
    return 1;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() != 4)
        return echouer(u"talor_guide GUIDE.md EMBLEME.svg GUIDE.pdf"_s);
    QFile source(arguments[1]);
    if (!source.open(QIODevice::ReadOnly))
        return echouer(arguments[1] + u" : "_s + source.errorString());

    Guide guide(QString::fromUtf8(source.readAll()), QFileInfo(arguments[1]).path());
    if (!guide.imagesAbsentes().isEmpty())
        return echouer(u"Images absentes : "_s + guide.imagesAbsentes().join(u", "));
    if (!guide.ecrire(arguments[3], arguments[2], u"Version " TALOR_VERSION ""_s))
        return echouer(arguments[3] + u" n'a pas pu être écrit"_s);
    return 0;
}
