#include "reference/cadre_image.h"

#include "platform/controls/icons.h"
#include "platform/controls/look.h"
#include "platform/controls/named.h"

#include <QBoxLayout>
#include <QImageReader>
#include <QPushButton>
#include <QShortcut>
#include <QToolButton>

namespace talor {

using namespace Qt::StringLiterals;
using controls::named;

namespace {

constexpr QSize place{220, 165};
constexpr qreal definitionMax = 2; ///< pixels kept for one of the layout, for finer screens

/// Read no larger than it is shown: a photograph of the quay may be a hundred times that.
QPixmap lire(const QString& chemin)
{
    QImageReader lecteur(chemin);
    lecteur.setDecideFormatFromContent(true);
    lecteur.setAutoTransform(true);
    const QSize limite = place * definitionMax;
    if (const QSize taille = lecteur.size(); taille.width() > limite.width() || taille.height() > limite.height())
        lecteur.setScaledSize(taille.scaled(limite, Qt::KeepAspectRatio));
    return QPixmap::fromImage(lecteur.read());
}

} // namespace

CadreImage::CadreImage(QWidget* parent)
    : QFrame(parent)
    , m_image(named(new QToolButton, u"Image3"))
{
    named(this, u"SSFrame2");
    controls::setRole(this, controls::Role::Panel);
    m_image->setIconSize(place);
    connect(new QShortcut(Qt::CTRL | Qt::Key_I, m_image), &QShortcut::activated, m_image, &QToolButton::click);
    m_image->setToolTip(u"Choisir une image (Ctrl+I)"_s);
    m_image->setAccessibleName(u"Image du produit"_s);
    auto* supprimer = named(new QPushButton(u"Supprimer l'&image"_s), u"SSCommand1");
    auto* fermer = named(new QPushButton(u"&Fermer"_s), u"SSCommand2");

    auto* boutons = new QHBoxLayout;
    boutons->addWidget(supprimer);
    boutons->addStretch();
    boutons->addWidget(fermer);
    auto* colonne = new QVBoxLayout(this);
    colonne->setContentsMargins(12, 12, 12, 12);
    colonne->addWidget(m_image);
    colonne->addLayout(boutons);

    connect(m_image, &QToolButton::clicked, this, &CadreImage::choisir);
    connect(supprimer, &QPushButton::clicked, this, &CadreImage::supprimer);
    connect(fermer, &QPushButton::clicked, this, &CadreImage::fermer);
    charger({});
}

void CadreImage::charger(const QString& chemin)
{
    const QPixmap image = chemin.isEmpty() ? QPixmap() : lire(chemin);
    m_parDefaut = image.isNull();
    m_image->setIcon(m_parDefaut ? controls::icon(u"poisson", controls::colour::line) : QIcon(image));
}

} // namespace talor
