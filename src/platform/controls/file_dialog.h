#pragma once

#include <QString>

#include <functional>

class QWidget;

/// The dialogs that ask for a file or a folder. They answer its path, empty when the person gave up.
namespace controls::FileDialog {

enum class Kind
{
    Open,
    Save,
    Folder
};

struct Request
{
    Kind kind;
    QString title;
    QString start;  ///< folder, or proposed path of a file to save
    QString filter; ///< "Images (*.bmp *.gif *.jpg)"
};

QString open(QWidget* parent, const QString& title, const QString& folder, const QString& filter);
QString save(QWidget* parent, const QString& title, const QString& path, const QString& filter);
QString folder(QWidget* parent, const QString& title, const QString& folder);

/// Answers in place of the person. An empty script shows the dialogs again. Returns the script that stood before.
using Script = std::function<QString(const Request&)>;
Script setScript(Script script);

} // namespace controls::FileDialog
