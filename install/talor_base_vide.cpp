// Makes the empty exercise TAL00.mdb, from which the program copies each new year's file.

#include "core/schema.h"

#include "platform/store/error.h"

#include <QCoreApplication>
#include <QFile>
#include <QTextStream>

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() != 2) {
        QTextStream(stderr) << "talor_base_vide FICHIER" << Qt::endl;
        return 2;
    }
    try {
        QFile::remove(arguments[1]);
        talor::creerExerciceVide(arguments[1]);
    } catch (const store::Error& erreur) {
        QTextStream(stderr) << erreur.text() << Qt::endl;
        return 1;
    }
    return 0;
}
