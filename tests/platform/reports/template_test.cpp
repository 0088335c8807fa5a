#include "platform/reports/error.h"
#include "platform/reports/template.h"
#include "tests/support/print.h"

using namespace Qt::StringLiterals;
using reports::Template;

namespace {

/// What the reader has against a report whose fourth line is the one given.
QString complaint(const QString& line)
{
    const QString xml = u"<report>\n<page/>\n<section><source table=\"T\"/><detail height=\"5\"/></section>\n%1\n"
                        "</report>"_s.arg(line);
    try {
        Template::read(xml.toUtf8(), u"Essai.RPT"_s);
    } catch (const reports::Error& error) {
        return error.text();
    }
    return u"(rien)"_s;
}

TEST(Template, AFaultIsToldWithFileAndLine)
{
    const QList<QPair<QString, QString>> cases = {
        {u"<page-foot/>"_s, u"(rien)"_s},
        {u"<pied/>"_s, u"élément « pied » inconnu"_s},
        {u"<page-foot heigth=\"5\"/>"_s, u"attribut « heigth » inconnu dans « page-foot »"_s},
        {u"<page-foot height=\"cinq\"/>"_s, u"« height=\"cinq\" » n'est pas un nombre"_s},
        {u"<page-foot when=\"{T.x} =\"/>"_s, u"Formule illisible : « {T.x} = »"_s},
        {u"<page-foot><text>{T.x</text></page-foot>"_s, u"accolade non fermée dans « {T.x »"_s},
        {u"<page-foot><text>{pagse}</text></page-foot>"_s,
         u"« {pagse} » : ni un champ « {Table.champ} », ni un total du modèle"_s},
        {u"<page-foot><text w=\"200\">x</text></page-foot>"_s, u"« text » dépasse la marge de droite"_s},
        {u"<page-foot><text x=\"-1\">x</text></page-foot>"_s, u"place hors de la page"_s},
        {u"<page-foot><text style=\"gras\">x</text></page-foot>"_s, u"style « gras » inconnu"_s},
        {u"<page-foot><text align=\"middle\">x</text></page-foot>"_s, u"« align=\"middle\" » : valeur inconnue"_s},
        {u"<page-foot><text color=\"rouille\">x</text></page-foot>"_s,
         u"« color=\"rouille\" » n'est pas une couleur"_s},
        {u"<page-foot>perdu</page-foot>"_s, u"texte « perdu » hors d'un champ"_s},
        {u"<sum name=\"s\" of=\"{T.x} {T.y}\"/>"_s, u"« + » ou « - » attendu dans « {T.x} {T.y} »"_s},
        {u"<sum of=\"{T.x}\"/>"_s, u"« name » manque dans « sum »"_s},
        {u"<section><detail/></section>"_s, u"section sans « source »"_s},
        {u"<section><source table=\"T\"><join table=\"U\" on=\"{T.x}\"/></source></section>"_s,
         u"« on » doit se lire « {Table.champ} = {Table.champ} »"_s},
    };
    for (const auto& [line, expected] : cases) {
        const QString said = complaint(line);
        EXPECT_EQ(said, expected == u"(rien)" ? expected : u"Essai.RPT, ligne 4 : "_s + expected) << line.toStdString();
    }
}

TEST(Template, WhatTheWholeFileMustHoldIsCheckedAtItsEnd)
{
    EXPECT_TRUE(complaint(u"<page-foot><text>{U.x}</text></page-foot>"_s)
                    .endsWith(u"« {U.x} » : la table « U » n'est pas dans les sources"_s));
    EXPECT_TRUE(complaint(u"<sum name=\"s\" of=\"{T.x}\" reset=\"clinet\"/>"_s)
                    .endsWith(u"« reset=\"clinet\" » : groupe inconnu"_s));
}

TEST(Template, AForeignBrokenOrAbsentFileIsNamed)
{
    const QList<QByteArray> contents = {"",
                                        "PK\x03\x04",
                                        "<html/>",
                                        "<report>",
                                        "<report><page/></report>",
                                        "<report><page left=\"150\" right=\"60\"/></report>"};
    for (const QByteArray& content : contents) {
        try {
            Template::read(content, u"Essai.RPT"_s);
            ADD_FAILURE() << content.constData();
        } catch (const reports::Error& error) {
            EXPECT_TRUE(error.text().startsWith(u"Essai.RPT, ligne "_s)) << error.what();
        }
    }
    try {
        Template::load(u"/nulle/part/Facture.RPT"_s);
        ADD_FAILURE();
    } catch (const reports::Error& error) {
        EXPECT_EQ(error.text(), u"Fichier 'Facture.RPT' absent"_s);
    }
}

} // namespace
