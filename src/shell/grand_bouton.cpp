#include "shell/grand_bouton.h"

#include "platform/controls/icons.h"
#include "platform/controls/labels.h"
#include "platform/controls/look.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QShortcut>

namespace talor {

namespace colour = controls::colour;

namespace {

constexpr int iconeMin = 28;
constexpr int iconeMax = 56;
constexpr int marge = 14;
constexpr int halo = 10; ///< from a picture to the edge of the disc behind it
constexpr int ecart = 8;
constexpr int hauteurBas = 44;      ///< the lowest button
constexpr int hauteurEmpilee = 112; ///< from which the picture stands over the caption
constexpr qreal rayon = 10;

} // namespace

GrandBouton::GrandBouton(const QString& icone, const QString& libelle, const QKeySequence& touche,
                         Disposition disposition, QWidget* parent)
    : QAbstractButton(parent)
    , m_icone(controls::icon(icone))
    , m_disposition(disposition)
    , m_image(new QWidget(this))
    , m_libelle(new QLabel(libelle, this))
    , m_touche(controls::hintLabel(touche.toString(QKeySequence::NativeText)))
    , m_rangee(new QBoxLayout(QBoxLayout::LeftToRight, this))
    , m_fondRepos(colour::paper)
    , m_fondAllume(colour::blueLight)
{
    setAccessibleName(libelle.trimmed());
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    // Not the button's own shortcut, which plays the press on screen first and acts after it.
    connect(new QShortcut(touche, this), &QShortcut::activated, this, &QAbstractButton::click);

    QFont police = m_libelle->font();
    police.setPointSizeF(police.pointSizeF() * 1.15);
    police.setWeight(QFont::DemiBold);
    m_libelle->setFont(police);
    m_touche->setParent(this);
    m_touche->setWordWrap(false);
    for (QWidget* posee : {m_image, static_cast<QWidget*>(m_libelle), static_cast<QWidget*>(m_touche)})
        posee->setAttribute(Qt::WA_TransparentForMouseEvents);

    m_rangee->setSpacing(0);
    m_rangee->addStretch(1);
    m_rangee->addWidget(m_image);
    m_rangee->addSpacing(halo + ecart);
    m_rangee->addWidget(m_libelle);
    m_rangee->addStretch(1);
}

void GrandBouton::setFonds(QColor repos, QColor allume)
{
    m_fondRepos = repos;
    m_fondAllume = allume;
    update();
}

void GrandBouton::allumer(bool allume)
{
    m_allume = allume;
    update();
}

QSize GrandBouton::sizeHint() const
{
    return minimumSizeHint();
}

/// In a line, which is the lower and the wider of the two ways to lay it out.
QSize GrandBouton::minimumSizeHint() const
{
    const QSize libelle = m_libelle->sizeHint();
    return {marge + halo + iconeMin + halo + ecart + libelle.width() + placeTouche(),
            qMax(hauteurBas, libelle.height() + marge)};
}

int GrandBouton::placeTouche() const
{
    return ecart + m_touche->sizeHint().width() + marge;
}

/// Puts the picture over the caption or beside it, and the key into the corner.
void GrandBouton::disposer()
{
    const bool empile = m_disposition == Disposition::SelonLaPlace && height() >= hauteurEmpilee;
    m_rangee->setDirection(empile ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    m_rangee->setAlignment(m_image, empile ? Qt::AlignHCenter : Qt::AlignVCenter);
    m_rangee->setAlignment(m_libelle, empile ? Qt::AlignHCenter : Qt::AlignVCenter);
    m_rangee->setContentsMargins(empile ? QMargins(marge, marge, marge, 0)
                                        : QMargins(marge + halo, 0, placeTouche(), 0));
    // Captions of a column begin at one place.
    m_rangee->setStretch(0, m_disposition == Disposition::EnLigne ? 0 : 1);
    const int cote = empile ? qBound(iconeMin, height() / 4, iconeMax) : iconeMin;
    m_image->setFixedSize(cote, cote);

    m_touche->adjustSize();
    const int y = empile ? marge / 2 : (height() - m_touche->height()) / 2;
    m_touche->move(width() - m_touche->width() - marge, y);
}

void GrandBouton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool focus = hasFocus();
    const qreal trait = focus ? 2 : 1;
    QColor surface = isDown() ? colour::sandDeep : fond();
    if (!isEnabled())
        surface = colour::sand;
    painter.setBrush(surface);
    painter.setPen(QPen(focus ? colour::focus : colour::line, trait));
    painter.drawRoundedRect(QRectF(rect()).adjusted(trait, trait, -trait, -trait), rayon, rayon);

    const QRectF image = m_image->geometry();
    const qreal rayonDisque = image.height() / 2 + halo;
    painter.setPen(Qt::NoPen);
    painter.setBrush(!isEnabled() ? colour::sand : m_allume ? colour::paper : colour::blueLight);
    painter.drawEllipse(image.center(), rayonDisque, rayonDisque);
    m_icone.paint(&painter, m_image->geometry(), Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
}

void GrandBouton::resizeEvent(QResizeEvent* event)
{
    QAbstractButton::resizeEvent(event);
    disposer();
}

void GrandBouton::enterEvent(QEnterEvent* event)
{
    QAbstractButton::enterEvent(event);
    allumer(true);
    emit survole();
}

void GrandBouton::leaveEvent(QEvent* event)
{
    QAbstractButton::leaveEvent(event);
    allumer(false);
}

void GrandBouton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

} // namespace talor
