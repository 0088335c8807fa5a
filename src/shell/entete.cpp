#include "shell/entete.h"

#include "core/helpers.h"
#include "core/state.h"
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

constexpr int hauteurAvecPort = 190;

/// "Samedi 6 Juin 2026"; the first of a month is ordinal.
QString dateEnToutesLettres(QDate jour)
{
    const QString& nom = NomsJours[static_cast<size_t>(jour.dayOfWeek() % 7)];
    const QString& mois = NomsMois[static_cast<size_t>(jour.month() - 1)];
    const QString quantieme = jour.day() == 1 ? u"1er"_s : QString::number(jour.day());
    return u"%1 %2 %3 %4"_s.arg(nom, quantieme, mois).arg(jour.year());
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
    , m_nom(named(ligne(1.9, QFont::Bold, controls::colour::navy), u"Label1", 0))
    , m_ligne(named(ligne(1.2, QFont::Normal, controls::colour::navy), u"Label1", 1))
    , m_annee(named(ligne(1.5, QFont::Bold, controls::colour::navy), u"Label1", 2))
    , m_date(named(ligne(1.0, QFont::Normal, controls::colour::navy), u"LabelDate"))
    , m_guide(named(new QPushButton(u"Guide"_s), u"SSCommand1"))
    , m_port(std::make_unique<QSvgRenderer>(u":/talor/port.svg"_s))
{
    m_port->setAspectRatioMode(Qt::KeepAspectRatioByExpanding);
    m_guide->setToolTip(u"Ouvrir le guide de l'utilisateur (PDF)"_s);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);

    auto* gauche = new QVBoxLayout;
    gauche->setSpacing(2);
    gauche->addWidget(m_nom);
    gauche->addWidget(m_ligne);
    gauche->addStretch();
    auto* droite = new QVBoxLayout;
    droite->setSpacing(2);
    droite->addWidget(m_annee, 0, Qt::AlignRight);
    droite->addWidget(m_date, 0, Qt::AlignRight);
    droite->addStretch();
    auto* rangee = new QHBoxLayout(this);
    rangee->setContentsMargins(24, 14, 24, 14);
    rangee->setSpacing(24);
    rangee->addLayout(gauche);
    rangee->addStretch();
    rangee->addLayout(droite);
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
    updateGeometry();
    update();
}

QSize Entete::sizeHint() const
{
    const QSize textes = QWidget::sizeHint();
    return m_portMontre ? textes.expandedTo(QSize(0, hauteurAvecPort)) : textes;
}

void Entete::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (m_portMontre)
        m_port->render(&painter, rect());
    else
        painter.fillRect(rect(), controls::colour::blueLight);
}

} // namespace talor
