#pragma once

#include "platform/store/recordset.h"
#include "tests/support/print.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

/// A small trade: enough tables to join, to sort by name and to post money.
inline const store::Catalogue& smallCatalogue()
{
    using enum store::FieldType;
    using namespace Qt::StringLiterals;
    static const store::Catalogue catalogue(
        0x54414c54, 3,
        {
            {u"Clients"_s,
             {{u"num"_s, Counter, {}},
              {u"ordre"_s, Long, {}},
              {u"nom"_s, Text, {}},
              {u"prenom"_s, Text, {}},
              {u"ville"_s, Text, {}},
              {u"Solde"_s, Double, {}}},
             {}},
            {u"Factures"_s,
             {{u"ordre"_s, Long, {}}, // the counter stands second here
              {u"num"_s, Counter, {}},
              {u"Date"_s, Date, {}},
              {u"num_client"_s, Long, {}},
              {u"Total"_s, Double, {}},
              {u"Flag_R"_s, YesNo, {}},
              {u"Ref"_s, Text, {}}},
             {{u"num_client"_s}, {u"Date"_s}}},
            {u"L_Vente"_s,
             {{u"num"_s, Counter, {}},
              {u"Date"_s, Date, {}},
              {u"num_client"_s, Long, {}},
              {u"Casiers"_s, Long, {}},
              {u"poids"_s, Double, {}},
              {u"Total"_s, Double, {}},
              {u"Num_Facture"_s, Long, -1}},
             {{u"Num_Facture"_s, u"num_client"_s}}},
            {u"Permn"_s,
             {{u"Commission"_s, Single, 15.0}, {u"Index"_s, Integer, {}}, {u"compte"_s, Text, u"l'agence"_s}},
             {}},
        });
    return catalogue;
}

/// Each test starts on an empty file of its own.
class StoreTest : public testing::Test
{
protected:
    StoreTest()
    {
        store::Database::create(path(), smallCatalogue());
        reopen();
    }

    QString path(const QString& name = QStringLiteral("TAL2026.mdb")) const { return folder.filePath(name); }

    void reopen()
    {
        base.reset();
        base = std::make_unique<store::Database>(path(), smallCatalogue());
    }

    qint64 addClient(const QString& name, const QString& firstName = {}, const QString& town = {}, double balance = 0)
    {
        store::Recordset clients = base->openTable(QStringLiteral("Clients"));
        clients.addNew();
        clients.set("ordre", ++order);
        clients.set("nom", name);
        clients.set("prenom", firstName);
        clients.set("ville", town);
        clients.set("Solde", balance);
        return clients.update();
    }

    qint64 addInvoice(qint64 client, const QString& date, double total, bool paid = false)
    {
        store::Recordset invoices = base->openTable(QStringLiteral("Factures"));
        invoices.addNew();
        invoices.set("ordre", ++order);
        invoices.set("num_client", client);
        invoices.set("Date", date);
        invoices.set("Total", total);
        invoices.set("Flag_R", paid);
        return invoices.update();
    }

    /// A column of all rows of a query, as text.
    QStringList column(const QString& query, const QVariantList& values = {}, int position = 0)
    {
        QStringList found;
        for (store::Recordset rows = base->openRecordset(query, values); !rows.eof(); rows.moveNext())
            found += rows.text(position);
        return found;
    }

    QTemporaryDir folder;
    std::unique_ptr<store::Database> base;
    int order = 0;
};

/// The number of the error that the action throws; 0 when it throws none.
template<class Action> int faultOf(Action action, QString* text = nullptr)
{
    try {
        action();
        return 0;
    } catch (const store::Error& error) {
        if (text)
            *text = error.text();
        return error.number();
    }
}
