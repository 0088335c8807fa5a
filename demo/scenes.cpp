#include "demo/scenes.h"

#include "shell/form1.h"

namespace talor::demo {

using namespace Qt::StringLiterals;

namespace {

/// A buyer who comes for the first time: number, name, first name, address, telephone and town, typed without capitals,
/// which the card puts in.
Scene clientNouveau(Form1& form1)
{
    return {u"Un client nouveau, N° 37, est ouvert au clavier"_s,
            {u"j_Client-nouveau"_s,
             [&] { form1.executer(u"mnu_art"_s); },
             {u"<Ins>"_s, u"37"_s, u"<Return>"_s, u"khaldi"_s, u"<Return>"_s, u"nassim"_s, u"<Return>"_s,
              u"Port de plaisance"_s, u"<Return>"_s, u"<Return>"_s, u"0550000237"_s, u"<Return>"_s, u"<Return>"_s,
              u"tipaza"_s, u"<Ctrl+Return>"_s}},
            [](Exercice& exercice) -> std::optional<QString> {
                store::Recordset client = exercice.Base().openRecordset(u"select * from Clients where ordre = 37"_s);
                const QString fiche = client.eof() ? QString()
                                                   : QStringList{client.text("nom"), client.text("prenom"),
                                                                 client.text("tel"), client.text("ville")}
                                                         .join(u' ');
                if (fiche == u"KHALDI Nassim 0550000237 Tipaza")
                    return std::nullopt;
                return u"client N° 37 : « "_s + fiche + u" »"_s;
            }};
}

} // namespace

QList<Scene> scenes(Form1& form1)
{
    return {clientNouveau(form1)};
}

} // namespace talor::demo
