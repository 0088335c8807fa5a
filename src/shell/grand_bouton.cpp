#include "shell/grand_bouton.h"

#include "platform/controls/icons.h"
#include "platform/controls/look.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>

namespace talor {

namespace colour = controls::colour;

namespace {

constexpr int coteIcone = 44;
constexpr int marge = 12;
constexpr qreal rayon = 10;

QLabel* etiquette(QWidget* parent, const QString& texte, qreal corps, QFont::Weight graisse)
{
    auto* label = new QLabel(texte, parent);
    QFont police = label->font();
    police.setPointSizeF(police.pointSizeF() * corps);
    police.setWeight(graisse);
    label->setFont(police);
    label->setAlignment(Qt::AlignCenter);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    return label;
}

} // namespace

GrandBouton::GrandBouton(const QString& icone, const QString& libelle, const QKeySequence& touche, QWidget* parent)
    : QAbstractButton(parent)
    , m_icone(controls::icon(icone))
    , m_image(new QLabel(this))
    , m_libelle(etiquette(this, libelle, 1.15, QFont::DemiBold))
    , m_touche(etiquette(this, touche.toString(QKeySequence::NativeText), 0.8, QFont::Normal))
    , m_fondRepos(colour::paper)
    , m_fondAllume(colour::blueLight)
{
    setAccessibleName(libelle.trimmed());
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setShortcut(touche);

    m_image->setAlignment(Qt::AlignCenter);
    m_image->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_touche->setAlignment(Qt::AlignRight | Qt::AlignTop);

    auto* colonne = new QVBoxLayout(this);
    colonne->setContentsMargins(marge, marge / 2, marge, marge);
    colonne->setSpacing(4);
    colonne->addWidget(m_touche);
    colonne->addStretch();
    colonne->addWidget(m_image);
    colonne->addSpacing(4);
    colonne->addWidget(m_libelle);
    colonne->addStretch();
    montrerIcone();
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
    return minimumSizeHint() + QSize(40, 30);
}

QSize GrandBouton::minimumSizeHint() const
{
    return layout()->totalMinimumSize() + QSize(0, 2);
}

void GrandBouton::montrerIcone()
{
    const QIcon::Mode mode = isEnabled() ? QIcon::Normal : QIcon::Disabled;
    m_image->setPixmap(m_icone.pixmap(QSize(coteIcone, coteIcone), devicePixelRatioF(), mode));
    QPalette palette = m_touche->palette();
    palette.setColor(QPalette::WindowText, isEnabled() ? colour::muted : colour::disabled);
    m_touche->setPalette(palette);
}

void GrandBouton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool focus = hasFocus();
    const qreal trait = focus ? 2 : 1;
    const QRectF cadre = QRectF(rect()).adjusted(trait, trait, -trait, -trait);
    QColor fondMontre = isDown() ? colour::sandDeep : fond();
    if (!isEnabled())
        fondMontre = colour::sand;
    painter.setBrush(fondMontre);
    painter.setPen(QPen(focus ? colour::focus : colour::line, trait));
    painter.drawRoundedRect(cadre, rayon, rayon);
}

void GrandBouton::enterEvent(QEnterEvent* event)
{
    QAbstractButton::enterEvent(event);
    allumer(true);
    emit designe();
}

void GrandBouton::leaveEvent(QEvent* event)
{
    QAbstractButton::leaveEvent(event);
    allumer(hasFocus());
}

void GrandBouton::focusInEvent(QFocusEvent* event)
{
    QAbstractButton::focusInEvent(event);
    allumer(true);
    emit designe();
}

void GrandBouton::focusOutEvent(QFocusEvent* event)
{
    QAbstractButton::focusOutEvent(event);
    allumer(underMouse());
}

void GrandBouton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

void GrandBouton::changeEvent(QEvent* event)
{
    QAbstractButton::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        montrerIcone();
}

} // namespace talor
