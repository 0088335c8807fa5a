#pragma once

#include <QPointer>
#include <QString>

class QProgressDialog;
class QWidget;

namespace controls {

/// The hourglass while it lives, for a wait that may pass half a second: a print, a run over many clients.
class Busy
{
public:
    Busy();
    ~Busy();
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;
};

/// A bar for a work of several steps, which shows once the work is seen to last more than two seconds. Windows are
/// kept alive meanwhile, and closed to every key but the bar's own "Annuler".
///
///     Progress progress(this, u"Facturation"_s, clients.size());
///     for (...) { if (!progress.advance(done)) break; ... }
class Progress
{
public:
    enum class Cancel
    {
        Allowed,
        Refused
    };

    Progress(QWidget* parent, const QString& text, int steps, Cancel cancel = Cancel::Allowed);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// Steps done so far. False when the person has cancelled.
    bool advance(int done);
    bool cancelled() const;

    /// For tests: how long a work must last before its bar shows, in place of the two seconds. Returns what stood.
    static int setPatience(int milliseconds);

private:
    QPointer<QProgressDialog> m_bar;
    Cancel m_cancel;
};

} // namespace controls
