#include "platform/controls/file_dialog.h"

#include <QFileDialog>

#include <utility>

namespace controls::FileDialog {

namespace {

Script& script()
{
    static Script current;
    return current;
}

} // namespace

QString open(QWidget* parent, const QString& title, const QString& start, const QString& filter)
{
    if (script())
        return script()({Kind::Open, title, start, filter});
    return QFileDialog::getOpenFileName(parent, title, start, filter);
}

QString save(QWidget* parent, const QString& title, const QString& path, const QString& filter)
{
    if (script())
        return script()({Kind::Save, title, path, filter});
    return QFileDialog::getSaveFileName(parent, title, path, filter);
}

QString folder(QWidget* parent, const QString& title, const QString& start)
{
    if (script())
        return script()({Kind::Folder, title, start, {}});
    return QFileDialog::getExistingDirectory(parent, title, start);
}

Script setScript(Script next)
{
    return std::exchange(script(), std::move(next));
}

} // namespace controls::FileDialog
