#include "guide.h"

#include "platform/controls/look.h"

#include <QAbstractTextDocumentLayout>
#include <QDir>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgRenderer>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextTable>

namespace talor {

using namespace Qt::StringLiterals;
namespace colour = controls::colour;

namespace {

/// A sheet of A4 and what is written on it, in points.
constexpr QSizeF feuilleA4(595.28, 841.89);
constexpr QMarginsF marges(62, 58, 62, 72);
constexpr QSizeF colonne(feuilleA4.width() - marges.left() - marges.right(),
                         feuilleA4.height() - marges.top() - marges.bottom());
constexpr int pointsParPouce = 72;
constexpr int finesse = 1200; ///< dots per inch in which letters are placed

constexpr qreal corps = 10.5;
constexpr qreal corpsTable = 9.5;
constexpr qreal corpsLegende = 8.5;
constexpr qreal interligne = 132; // percent
/// A picture this many pixels wide fills the column; a narrower one is shown at the same scale.
constexpr qreal pixelsColonne = 1280;

constexpr int pagesCouverture = 1;
constexpr qreal hauteurCouverture = 250;
constexpr int lignesSousTitre = 3;

struct StyleTitre
{
    qreal corps, avant, apres;
    QColor couleur;
};

StyleTitre styleTitre(int niveau)
{
    return niveau <= 2 ? StyleTitre{17, 24, 7, colour::navy} : StyleTitre{12.5, 14, 4, colour::blue};
}

QFont police(qreal taille, QFont::Weight graisse = QFont::Normal)
{
    QFont font;
    font.setFamilies({u"Liberation Sans"_s, u"DejaVu Sans"_s});
    font.setPointSizeF(taille);
    font.setWeight(graisse);
    return font;
}

/// Lengths of a document are in pixels of the screen; here they are meant in points.
qreal longueur(qreal points)
{
    static const qreal pixelsParPoint = QImage(1, 1, QImage::Format_RGB32).logicalDpiX() / qreal(pointsParPouce);
    return points * pixelsParPoint;
}

/// Runs over the pieces of a block that share one format.
template<class Fonction> void pourChaqueMorceau(const QTextBlock& bloc, Fonction fonction)
{
    QList<std::pair<int, int>> places;
    for (auto i = bloc.begin(); !i.atEnd(); ++i)
        places.append({i.fragment().position(), i.fragment().length()});
    for (const auto& [position, nombre] : places) {
        QTextCursor curseur(bloc);
        curseur.setPosition(position);
        curseur.setPosition(position + nombre, QTextCursor::KeepAnchor);
        fonction(curseur);
    }
}

QTextCharFormat format(const QTextCharFormat& ecrit, qreal taille, const QColor& encre, bool gras)
{
    const bool code = ecrit.fontFixedPitch();
    QTextCharFormat format;
    QFont font =
        police(code ? taille * 0.93 : taille, gras || ecrit.fontWeight() > QFont::Normal ? QFont::Bold : QFont::Normal);
    if (code)
        font.setFamilies({u"Liberation Mono"_s, u"DejaVu Sans Mono"_s});
    font.setItalic(ecrit.fontItalic());
    format.setFont(font);
    format.setFontFixedPitch(code);
    format.setForeground(code ? colour::accentDeep : encre);
    return format;
}

void ecrireEn(const QTextBlock& bloc, qreal taille, const QColor& encre, bool gras = false)
{
    pourChaqueMorceau(bloc, [&](QTextCursor& morceau) {
        if (!morceau.charFormat().isImageFormat())
            morceau.setCharFormat(format(morceau.charFormat(), taille, encre, gras));
    });
}

bool estImage(const QTextBlock& bloc)
{
    return bloc.length() == 2 && bloc.begin().fragment().charFormat().isImageFormat();
}

bool estDansTable(const QTextBlock& bloc)
{
    return QTextCursor(bloc).currentTable() != nullptr;
}

/// What must not be parted from what follows it.
bool annonceLaSuite(const QTextBlock& bloc)
{
    return bloc.blockFormat().headingLevel() > 0 || estImage(bloc) ||
           (!estDansTable(bloc) && (bloc.text().trimmed().endsWith(u':') || estImage(bloc.next())));
}

/// The blanks at which French never breaks a line.
QString tenirPonctuation(QString texte)
{
    for (const QStringView signe : {u" :", u" ;", u" ?", u" !", u" »"})
        texte.replace(signe.toString(), QChar::Nbsp + signe.mid(1).toString());
    return texte.replace(u"« "_s, u"«"_s + QChar::Nbsp);
}

QImage encadrer(QImage image)
{
    image = image.convertToFormat(QImage::Format_RGB32);
    QPainter pinceau(&image);
    pinceau.setPen(QPen(colour::line, 2));
    pinceau.drawRect(image.rect().adjusted(1, 1, -1, -1));
    return image;
}

} // namespace

Guide::Guide(const QString& markdown, const QString& images)
{
    // What stands before the first chapter is for the cover.
    const qsizetype debut = markdown.indexOf(u"\n## ");
    const QString couverture = markdown.left(debut);
    m_titre = couverture.section(u'\n', 0, 0).remove(u"# "_s);
    m_chapeau = couverture.section(u'\n', 1).simplified();
    m_texte.setDefaultFont(police(corps));
    m_texte.setDocumentMargin(0);
    m_texte.setMarkdown(tenirPonctuation(markdown.mid(debut)), QTextDocument::MarkdownDialectGitHub);

    habillerBlocs();
    habillerTables();
    placerImages(images);
}

// --- How it looks -------------------------------------------------------------------------------

void Guide::habillerBlocs()
{
    for (QTextBlock bloc = m_texte.begin(); bloc.isValid(); bloc = bloc.next()) {
        QTextBlockFormat mise = bloc.blockFormat();
        const int niveau = mise.headingLevel();
        if (niveau > 0) {
            const StyleTitre style = styleTitre(niveau);
            mise.setTopMargin(longueur(style.avant));
            mise.setBottomMargin(longueur(style.apres));
            ecrireEn(bloc, style.corps, style.couleur, true);
        } else {
            mise.setTopMargin(0);
            mise.setBottomMargin(longueur(bloc.textList() && bloc.next().textList() == bloc.textList() ? 3 : 8));
            mise.setLineHeight(interligne, QTextBlockFormat::ProportionalHeight);
            ecrireEn(bloc, corps, colour::ink);
        }
        QTextCursor(bloc).setBlockFormat(mise);
    }
}

/// Rules between the rows, a tinted head, no box.
void Guide::habillerTables()
{
    for (QTextFrame* cadre : m_texte.rootFrame()->childFrames()) {
        auto* table = qobject_cast<QTextTable*>(cadre);
        if (!table)
            continue;
        QTextTableFormat mise = table->format();
        mise.setBorder(0);
        mise.setBorderCollapse(true);
        mise.setCellPadding(longueur(4));
        mise.setCellSpacing(0);
        mise.setTopMargin(longueur(4));
        mise.setBottomMargin(longueur(12));
        mise.setHeaderRowCount(1);
        mise.setWidth(QTextLength(QTextLength::PercentageLength, 100));
        const int premiere = table->columns() == 2 ? 30 : 100 / table->columns();
        QList<QTextLength> largeurs(
            table->columns(), QTextLength(QTextLength::PercentageLength, (100 - premiere) / (table->columns() - 1.0)));
        largeurs[0] = QTextLength(QTextLength::PercentageLength, premiere);
        mise.setColumnWidthConstraints(largeurs);
        table->setFormat(mise);

        for (int rang = 0; rang < table->rows(); ++rang) {
            for (int i = 0; i < table->columns(); ++i) {
                QTextTableCell cellule = table->cellAt(rang, i);
                QTextTableCellFormat bords = cellule.format().toTableCellFormat();
                bords.setBottomBorder(longueur(0.6));
                bords.setBottomBorderStyle(QTextFrameFormat::BorderStyle_Solid);
                bords.setBottomBorderBrush(rang == 0 ? colour::blue : colour::line);
                if (rang == 0)
                    bords.setBackground(colour::blueLight);
                cellule.setFormat(bords);
                for (auto bloc = cellule.begin(); !bloc.atEnd(); ++bloc) {
                    QTextBlockFormat ligne = bloc.currentBlock().blockFormat();
                    ligne.setBottomMargin(0);
                    ligne.setLineHeight(120, QTextBlockFormat::ProportionalHeight);
                    ligne.setAlignment(Qt::AlignLeft);
                    QTextCursor(bloc.currentBlock()).setBlockFormat(ligne);
                    ecrireEn(bloc.currentBlock(), corpsTable, rang == 0 ? colour::navy : colour::ink, rang == 0);
                }
            }
        }
    }
}

/// Scales each picture to the column and writes what it shows under it.
void Guide::placerImages(const QString& dossier)
{
    for (QTextBlock bloc = m_texte.begin(); bloc.isValid(); bloc = bloc.next()) {
        if (!estImage(bloc))
            continue;
        QTextImageFormat place = bloc.begin().fragment().charFormat().toImageFormat();
        const QImage image(QDir(dossier).filePath(place.name()));
        if (image.isNull()) {
            m_absentes << place.name();
            continue;
        }
        const qreal largeur = colonne.width() * qMin(1.0, image.width() / pixelsColonne);
        m_texte.addResource(QTextDocument::ImageResource, QUrl(place.name()), encadrer(image));
        place.setWidth(longueur(largeur));
        place.setHeight(longueur(largeur * image.height() / image.width()));
        const QString legende = place.stringProperty(QTextFormat::ImageAltText);
        pourChaqueMorceau(bloc, [&](QTextCursor& morceau) { morceau.setCharFormat(place); });

        QTextBlockFormat mise;
        mise.setAlignment(Qt::AlignHCenter);
        mise.setTopMargin(longueur(6));
        mise.setBottomMargin(longueur(2));
        QTextCursor curseur(bloc);
        curseur.setBlockFormat(mise);
        curseur.movePosition(QTextCursor::EndOfBlock);
        mise.setTopMargin(0);
        mise.setBottomMargin(longueur(12));
        curseur.insertBlock(mise, {});
        QTextCharFormat petit;
        petit.setFont(police(corpsLegende));
        petit.setForeground(colour::muted);
        curseur.insertText(legende, petit);
        bloc = curseur.block();
    }
}

// --- Pages --------------------------------------------------------------------------------------

int Guide::pageDe(qreal y) const
{
    return static_cast<int>(y / m_texte.pageSize().height());
}

void Guide::mettreEnPages(QPaintDevice* feuille)
{
    m_texte.documentLayout()->setPaintDevice(feuille);
    m_texte.setPageSize(colonne * finesse / pointsParPouce);
    while (tenirEnsemble())
        m_texte.markContentsDirty(0, m_texte.characterCount()); // a break moves all that follows
}

/// Page on which a line of a block stands.
int Guide::pageDe(const QTextBlock& bloc, int ligne) const
{
    const QTextLayout* mise = bloc.layout();
    const qreal haut =
        m_texte.documentLayout()->blockBoundingRect(bloc).top() - mise->boundingRect().top() + mise->lineAt(ligne).y();
    return pageDe(haut + 1);
}

/// Sends to the next page the first block that is parted from what it announces, or the first table that is cut
/// although a page would hold it, with what announces it in its turn; false when all stands as well as it can.
bool Guide::tenirEnsemble()
{
    for (QTextBlock bloc = m_texte.begin(); bloc.next().isValid(); bloc = bloc.next()) {
        // Of a long paragraph, one line is not enough to stand by its heading.
        const QTextBlock suite = bloc.next();
        const int ligne = qMin(suite.layout()->lineCount(), lignesSousTitre) - 1;
        if (annonceLaSuite(bloc) && pageDe(bloc, 0) != pageDe(suite, ligne) && sauterAvant(bloc))
            return true;
    }
    for (QTextFrame* table : m_texte.rootFrame()->childFrames()) {
        const QTextBlock premier = table->firstCursorPosition().block();
        const QTextBlock dernier = table->lastCursorPosition().block();
        const bool tient = m_texte.documentLayout()->frameBoundingRect(table).height() < m_texte.pageSize().height();
        if (tient && pageDe(premier, 0) != pageDe(dernier, 0) && sauterAvant(premier))
            return true;
    }
    return false;
}

/// A break before the first of the blocks that lead to this one; false where there is one already.
bool Guide::sauterAvant(QTextBlock bloc)
{
    while (bloc.previous().isValid() && annonceLaSuite(bloc.previous()))
        bloc = bloc.previous();
    if (QTextTable* table = QTextCursor(bloc).currentTable()) {
        QTextTableFormat mise = table->format();
        if (mise.pageBreakPolicy() == QTextFormat::PageBreak_AlwaysBefore)
            return false;
        mise.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        table->setFormat(mise);
        return true;
    }
    QTextBlockFormat mise = bloc.blockFormat();
    if (mise.pageBreakPolicy() == QTextFormat::PageBreak_AlwaysBefore)
        return false;
    mise.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    mise.setTopMargin(0);
    QTextCursor(bloc).setBlockFormat(mise);
    return true;
}

int Guide::pageDuTexte(QStringView debut) const
{
    for (QTextBlock bloc = m_texte.begin(); bloc.isValid(); bloc = bloc.next())
        if (bloc.text().startsWith(debut))
            return pageDe(bloc, 0) + 1 + pagesCouverture;
    return 0;
}

QList<Guide::Chapitre> Guide::chapitres() const
{
    QList<Chapitre> liste;
    for (QTextBlock bloc = m_texte.begin(); bloc.isValid(); bloc = bloc.next()) {
        if (bloc.blockFormat().headingLevel() != 2)
            continue;
        liste.append({bloc.text(), pageDe(bloc, 0) + 1 + pagesCouverture});
    }
    return liste;
}

namespace {

/// One sheet under the pen, in points.
class Feuille
{
public:
    explicit Feuille(QPainter& pinceau)
        : m_pinceau(pinceau)
    {}

    void ecrire(const QRectF& place, int alignement, const QString& texte, const QFont& font, const QColor& encre)
    {
        m_pinceau.setFont(font);
        m_pinceau.setPen(encre);
        m_pinceau.drawText(enPoints(place), alignement, texte);
    }
    qreal largeur(const QString& texte, const QFont& font)
    {
        return QFontMetricsF(font, m_pinceau.device()).horizontalAdvance(texte) * pointsParPouce / finesse;
    }
    void remplir(const QRectF& place, const QColor& couleur) { m_pinceau.fillRect(enPoints(place), couleur); }
    void filet(qreal x1, qreal x2, qreal y, Qt::PenStyle trait = Qt::SolidLine)
    {
        m_pinceau.setPen(QPen(colour::line, 0.6 * finesse / pointsParPouce, trait, Qt::FlatCap));
        m_pinceau.drawLine(enPoints({x1, y, x2 - x1, 0}).topLeft(), enPoints({x2, y, 0, 0}).topLeft());
    }
    QRectF enPoints(const QRectF& place) const
    {
        constexpr qreal echelle = qreal(finesse) / pointsParPouce;
        return {place.topLeft() * echelle, place.size() * echelle};
    }

private:
    QPainter& m_pinceau;
};

void peindrePied(Feuille& feuille, const QString& titre, int page, int pages)
{
    const qreal y = feuilleA4.height() - marges.bottom() + 22;
    const QRectF ligne(marges.left(), y + 6, colonne.width(), 14);
    feuille.filet(ligne.left(), ligne.right(), y);
    feuille.ecrire(ligne, Qt::AlignLeft | Qt::AlignVCenter, titre, police(corpsLegende), colour::muted);
    feuille.ecrire(ligne, Qt::AlignRight | Qt::AlignVCenter, u"%1 / %2"_s.arg(page).arg(pages), police(corpsLegende),
                   colour::muted);
}

} // namespace

bool Guide::ecrire(const QString& pdf, const QString& embleme, const QString& version)
{
    QPdfWriter sortie(pdf);
    sortie.setTitle(m_titre);
    sortie.setCreator(u"TALOR"_s);
    sortie.setResolution(finesse);
    sortie.setPageSize(QPageSize(QPageSize::A4));
    sortie.setPageMargins({});
    mettreEnPages(&sortie);

    QPainter pinceau;
    if (!pinceau.begin(&sortie))
        return false;
    Feuille feuille(pinceau);
    const int pages = m_texte.pageCount();

    feuille.remplir({0, 0, feuilleA4.width(), hauteurCouverture}, colour::navy);
    feuille.remplir({0, hauteurCouverture, feuilleA4.width(), 5}, colour::accent);
    QSvgRenderer(embleme).render(&pinceau, feuille.enPoints({marges.left(), 70, 110, 110}));
    const qreal gauche = marges.left() + 136, large = feuilleA4.width() - marges.right() - gauche;
    feuille.ecrire({gauche, 66, large, 44}, Qt::AlignLeft | Qt::AlignVCenter, m_titre, police(30, QFont::Bold),
                   colour::paper);
    feuille.ecrire({gauche, 114, large, 80}, Qt::AlignLeft | Qt::TextWordWrap, m_chapeau, police(corps),
                   colour::blueLight);
    feuille.ecrire({gauche, 206, large, 16}, Qt::AlignLeft | Qt::AlignVCenter, version, police(corpsLegende),
                   colour::selected);
    qreal y = hauteurCouverture + 50;
    feuille.ecrire({marges.left(), y, colonne.width(), 24}, Qt::AlignLeft, u"Sommaire"_s, police(17, QFont::Bold),
                   colour::navy);
    y += 38;
    for (const Chapitre& chapitre : chapitres()) {
        const QFont font = police(11);
        const QRectF ligne(marges.left(), y, colonne.width(), 18);
        feuille.ecrire(ligne, Qt::AlignLeft | Qt::AlignVCenter, chapitre.titre, font, colour::ink);
        feuille.ecrire(ligne, Qt::AlignRight | Qt::AlignVCenter, QString::number(chapitre.page), font, colour::blue);
        feuille.filet(ligne.left() + feuille.largeur(chapitre.titre, font) + 6,
                      ligne.right() - feuille.largeur(QString::number(chapitre.page), font) - 6, ligne.bottom() - 4,
                      Qt::DotLine);
        y += 23;
    }

    const qreal hauteur = m_texte.pageSize().height();
    for (int page = 0; page < pages; ++page) {
        sortie.newPage();
        pinceau.save();
        pinceau.translate(feuille.enPoints({marges.left(), marges.top(), 0, 0}).topLeft());
        pinceau.translate(0, -page * hauteur);
        QAbstractTextDocumentLayout::PaintContext contexte;
        contexte.clip = QRectF(0, page * hauteur, m_texte.pageSize().width(), hauteur);
        pinceau.setClipRect(contexte.clip);
        m_texte.documentLayout()->draw(&pinceau, contexte);
        pinceau.restore();
        peindrePied(feuille, m_titre, page + 1 + pagesCouverture, pages + pagesCouverture);
    }
    return pinceau.end();
}

} // namespace talor
