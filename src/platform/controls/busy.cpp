#include "platform/controls/busy.h"

#include "platform/controls/named.h"

#include <QApplication>
#include <QProgressDialog>

#include <utility>

namespace controls {

using namespace Qt::StringLiterals;

namespace {
int patienceMilliseconds = 2000;
}

Busy::Busy()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
}

Busy::~Busy()
{
    QApplication::restoreOverrideCursor();
}

Progress::Progress(QWidget* parent, const QString& text, int steps, Cancel cancel)
    : m_bar(named(new QProgressDialog(text, u"Annuler"_s, 0, steps, parent), u"Progression"))
    , m_cancel(cancel)
{
    m_bar->setWindowTitle(u"TALOR"_s);
    m_bar->setWindowModality(Qt::WindowModal);
    m_bar->setMinimumDuration(patienceMilliseconds);
    m_bar->setMinimumWidth(420);
    m_bar->setAutoReset(false);
    m_bar->setAutoClose(false);
    if (cancel == Cancel::Refused)
        m_bar->setCancelButton(nullptr);
}

Progress::~Progress()
{
    delete m_bar;
}

bool Progress::advance(int done)
{
    if (m_bar)
        m_bar->setValue(done);
    return !cancelled();
}

bool Progress::cancelled() const
{
    return m_cancel == Cancel::Allowed && m_bar && m_bar->wasCanceled();
}

int Progress::setPatience(int milliseconds)
{
    return std::exchange(patienceMilliseconds, milliseconds);
}

} // namespace controls
