#include "shell/entete.h"

#include "core/helpers.h"
#include "core/state.h"
#include "platform/controls/icons.h"
#include "platform/controls/look.h"
#include "platform/controls/named.h"
#include "platform/services/clock.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QSvgRenderer>

namespace talor {

using namespace Qt::StringLiterals;
using controls::named;

namespace {

constexpr double largeurSurHauteur = 1600.0 / 264; // of the drawing
constexpr int hauteurMax = 330;

/// "Samedi 6 Juin 2026"; the first of a month is ordinal.
QString dateEnToutesLettres(QDate jour)
{
    const QString& nom = NomsJours[static_cast<size_t>(jour.dayOfWeek() % 7)];
    const QString& mois = NomsMois[static_cast<size_t>(jour.month() - 1)];
    const QString quantieme = jour.day() == 1 ? u"1er"_s : QString::number(jour.day());
    return u"%1 %2 %3 %4"_s.arg(nom, quantieme, mois).arg(jour.year());
}

/// A sheet under texts, so that they read on any part of the drawing.
void feuille(QHBoxLayout* rangee, Qt::Alignment cote, std::initializer_list<QLabel*> lignes)
{
    auto* cadre = new QFrame;
    controls::setRole(cadre, controls::Role::Sheet);
    auto* colonne = new QVBoxLayout(cadre);
    colonne->setContentsMargins(14, 8, 14, 8);
    colonne->setSpacing(2);
    for (QLabel* label : lignes)
        colonne->addWidget(label, 0, cote);
    rangee->addWidget(cadre, 0, Qt::AlignTop);
}

QLabel* ligne(qreal corps, QFont::Weight graisse, QColor encre)
{
    auto* label = new QLabel;
    QFont police = label->font();
    police.setPointSizeF(police.pointSizeF() * corps);
    police.setWeight(graisse);
    label->setFont(police);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, encre);
    label->setPalette(palette);
    return label;
}

} // namespace

Entete::Entete(QWidget* parent)
    : QWidget(parent)
    , m_nom(named(ligne(1.7, QFont::Bold, controls::colour::navy), u"Label1", 0))
    , m_ligne(named(ligne(1.2, QFont::Normal, controls::colour::navy), u"Label1", 1))
    , m_annee(named(ligne(1.5, QFont::Bold, controls::colour::navy), u"Label1", 2))
    , m_date(named(ligne(1.0, QFont::Normal, controls::colour::navy), u"LabelDate"))
    , m_guide(named(new QPushButton(controls::icon(u"aide"), u"Guide"_s), u"SSCommand1"))
    , m_port(std::make_unique<QSvgRenderer>(u":/talor/port.svg"_s))
{
    m_guide->setToolTip(u"Ouvrir le guide de l'utilisateur (PDF)"_s);
    auto* rangee = new QHBoxLayout(this);
    rangee->setContentsMargins(24, 12, 24, 12);
    rangee->setSpacing(12);
    feuille(rangee, Qt::AlignLeft, {m_nom, m_ligne});
    rangee->addStretch();
    feuille(rangee, Qt::AlignRight, {m_annee, m_date});
    rangee->addWidget(m_guide, 0, Qt::AlignTop);
}

Entete::~Entete() = default;

void Entete::montrer(const Exercice& exercice)
{
    m_nom->setText(exercice.identite(1).trimmed());
    m_ligne->setText(exercice.identite(3).trimmed());
    m_annee->setText(u"Année "_s + NombreAvecBlanc(exercice.Annee));
    m_date->setText(dateEnToutesLettres(services::clock::today()));
}

void Entete::setPortMontre(bool montre)
{
    m_portMontre = montre;
    ajusterHauteur();
    update();
}

/// With the port, the head keeps the proportions of the drawing; its texts always fit.
void Entete::ajusterHauteur()
{
    const int textes = layout()->totalMinimumSize().height();
    setFixedHeight(m_portMontre ? qBound(textes, static_cast<int>(width() / largeurSurHauteur), hauteurMax) : textes);
}

void Entete::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    ajusterHauteur();
}

void Entete::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (!m_portMontre) {
        painter.fillRect(rect(), controls::colour::blueLight);
        return;
    }
    // The drawing covers the width; a head that is lower than it shows its upper part.
    painter.setRenderHint(QPainter::Antialiasing);
    m_port->render(&painter, QRectF(0, 0, width(), width() / largeurSurHauteur));
}

} // namespace talor
