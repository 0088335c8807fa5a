#pragma once

#include <QDir>
#include <QStringList>
#include <QWidget>

#include <functional>
#include <optional>

namespace talor::demo {

/// One picture: a window opened as its user would open it, and brought by keys to the state that is to be seen.
struct Ecran
{
    /// Of the file, without ".png": the object name of the window to be seen, and behind "-" what it shows.
    QString nom;
    std::function<void()> ouvrir; ///< a modal dialog's returns once the dialog is closed
    QStringList touches = {};     ///< what `taper` takes, one by one, before the picture
    bool modale = true;           ///< false: the main window itself is taken
};

/// Types as a person would: "<Alt+N>" or "<Return>" presses a key, any other text is typed. Goes
/// into what has the focus. A key that opens a dialog returns once that dialog is closed.
void taper(const QString& touche);

/// Takes pictures of windows. Each picture is the front window once the keys are pressed, and whatever was opened for
/// it is closed again.
class Photographe
{
public:
    Photographe(QWidget& fenetre, const QDir& dossier);

    /// Nothing when the picture is on disk; else what went wrong, a French sentence.
    std::optional<QString> prendre(const Ecran& ecran);

private:
    class Prise;

    QWidget& m_fenetre;
    QDir m_dossier;
};

} // namespace talor::demo
