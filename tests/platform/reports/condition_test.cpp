#include "platform/reports/condition.h"
#include "platform/reports/error.h"
#include "tests/support/print.h"

using namespace Qt::StringLiterals;
using reports::Condition;

namespace {

TEST(Formula, BecomesAQueryWithBoundValues)
{
    struct Case
    {
        QString formula, query;
        QVariantList values;
    };
    const QList<Case> cases = {
        {u"{Factures.num} = 12"_s, u"Factures!num = ?"_s, {12LL}},
        {u"{L_Vente.num_Facture} = -1"_s, u"L_Vente!num_Facture = ?"_s, {-1LL}},
        {u"{MVMTS.date} >= date(2026,11,1) and {MVMTS.date} <= date (2026, 11, 30)"_s,
         u"MVMTS!date >= ? and MVMTS!date <= ?"_s,
         {u"2026-11-01"_s, u"2026-11-30"_s}},
        {u"{Recettes.date} = #11/15/2026#"_s, u"Recettes!date = ?"_s, {u"2026-11-15"_s}},
        {u"{Factures.Flag_R} = False AND {Factures.Total}<>0.5"_s,
         u"Factures!Flag_R = ? and Factures!Total <> ?"_s,
         {0LL, 0.5}},
        {u"{Clients.nom} = 'O''BRIEN'"_s, u"Clients!nom = ?"_s, {u"O'BRIEN"_s}},
        {u"{Clients.Debit} < 1000000000000000000000000000000"_s, u"Clients!Debit < ?"_s, {1e30}},
        {u"{Clients.Solde} < 0 and {Clients.Diff} > 3"_s, u"Clients!Solde < ? and Clients!Diff > ?"_s, {0LL, 3LL}},
    };
    for (const Case& c : cases) {
        QVariantList values;
        EXPECT_EQ(Condition::parse(c.formula).toQuery(&values), c.query);
        EXPECT_EQ(values, c.values) << c.formula.toStdString();
    }
}

TEST(Formula, WhatCannotBeReadIsNamedAndNeverPassedOver)
{
    const QStringList formulas = {
        u"{Factures.num}"_s,                                               // nothing to compare with
        u"not {Factures.num}"_s,                                           //
        u"{Factures.num} = "_s,                                            //
        u"{Factures.num} = 12 or {Factures.num} = 3"_s,                    //
        u"{Factures.num} = 12 and"_s,                                      //
        u"{Factures.num} = 12abc"_s,                                       //
        u"{Factures.num = 12"_s,                                           //
        u"Factures.num = 12"_s,                                            //
        u"{num} = 12"_s,                                                   // no table
        u"{Factures.num; drop} = 12"_s,                                    //
        u"{Recettes.date} = date(2026,13,1)"_s,                            // no such day
        u"{Recettes.date} = date(2026,11)"_s,                              //
        u"{Recettes.date} = date(20260000000000,1,1)"_s,                   // no number of a date at all
        u"{Recettes.date} = #11/1"_s + u"0"_s.repeated(400) + u"/2026#"_s, //
        u"{Clients.nom} = 'sans fin"_s,                                    //
    };
    for (const QString& formula : formulas) {
        try {
            QVariantList values;
            const QString query = Condition::parse(formula).toQuery(&values);
            ADD_FAILURE() << formula.toStdString() << " was read as " << query.toStdString();
        } catch (const reports::Error& error) {
            EXPECT_TRUE(error.text().contains(formula)) << error.what();
        }
    }
}

TEST(Condition, HoldsOrNotOnTheValuesOfARow)
{
    struct Case
    {
        QString condition;
        QVariant value;
        bool holds;
    };
    const QList<Case> cases = {
        {u"{T.x}"_s, u"du texte"_s, true},
        {u"{T.x}"_s, u"  "_s, false},
        {u"{T.x}"_s, 0.0, false},
        {u"{T.x}"_s, QVariant(), false},
        {u"not {T.x}"_s, QVariant(), true},
        {u"not {T.x}"_s, 3, false},
        {u"{T.x} = -1"_s, -1, true},
        {u"{T.x} > 2"_s, 2, false},
        {u"{T.x} >= 2"_s, 2, true},
        {u"{T.x} <= 2 and {T.x} <> 1"_s, 1, false},
        {u"{T.x} = 'Regul'"_s, u"REGUL "_s, true},
        {u"{T.x} = True"_s, 1, true},
        {u"{T.x} < date(2026,11,15)"_s, u"14/11/2026"_s, true},
        {u"{T.x} < date(2026,11,15)"_s, u"15/01/2027"_s, false},
    };
    for (const Case& c : cases) {
        Condition condition = Condition::parse(c.condition);
        condition.bind([](const QString&) { return reports::Reference{reports::Reference::Kind::Field, 0}; });
        const std::vector<QVariant> row = {c.value};
        EXPECT_EQ(condition.holds({&row, nullptr, 1, {}}), c.holds) << c.condition.toStdString();
    }
}

} // namespace
