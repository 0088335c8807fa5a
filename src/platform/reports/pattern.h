#pragma once

#include "platform/reports/values.h"

#include <QList>

#include <functional>

namespace reports {

/// The text of a template's field: plain text with references in braces, each with a mask behind a colon where the
/// value is a number to be laid out.
///
///     Facture N° {textes.ch6}        {Factures.Total:### ### ##0.00} DA        Page {page} / {pages}
class Pattern
{
public:
    Pattern() = default;
    /// Throws Error when a brace is not closed; `resolve` throws for a name that means nothing.
    Pattern(const QString& text, const std::function<Reference(const QString& name)>& resolve);

    QString text(const Values& values) const;

    /// True when there is a reference and every one is blank: a line of an address that need not stand.
    bool isBlank(const Values& values) const;

    /// Figures laid into a mask must not be cut: they shrink as far as it takes.
    bool isFigure() const { return m_isFigure; }

private:
    struct Piece
    {
        QString literal; ///< a mask where there is a reference
        Reference reference;
        bool isReference = false;
    };

    QList<Piece> m_pieces;
    bool m_isFigure = false;
};

} // namespace reports
