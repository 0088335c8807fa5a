#pragma once

#include <QImage>
#include <QList>
#include <QString>
#include <QTextDocument>

class QTextBlock;
class QTextTable;

namespace talor {

/// The user's guide, written in Markdown, laid out on the pages of a booklet: a cover with its contents, then the
/// text. A heading, a caption and a line that announces a table stay with what they belong to.
class Guide
{
public:
    /// `images` is the folder against which the pictures of the text are looked up. Lengths are in points.
    Guide(const QString& markdown, const QString& images);

    /// Writes the booklet; false when the file cannot be written. `embleme` is an SVG picture.
    bool ecrire(const QString& pdf, const QString& embleme, const QString& version);

    /// Pictures named in the text that are not there.
    const QStringList& imagesAbsentes() const { return m_absentes; }
    /// Page, from 1, on which the paragraph that begins with this text begins; 0 for none. Once it is written.
    int pageDuTexte(QStringView debut) const;

private:
    struct Chapitre
    {
        QString titre;
        int page;
    };

    void habillerBlocs();
    void habillerTables();
    void placerImages(const QString& dossier);
    void mettreEnPages(QPaintDevice* feuille);
    bool tenirEnsemble();
    bool sauterAvant(QTextBlock bloc);
    int pageDe(qreal y) const;
    int pageDe(const QTextBlock& bloc, int ligne) const;
    QList<Chapitre> chapitres() const;

    QTextDocument m_texte;
    QString m_titre, m_chapeau;
    QStringList m_absentes;
};

} // namespace talor
