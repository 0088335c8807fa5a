#include "platform/services/opener.h"

#include <QDesktopServices>
#include <QUrl>

#include <utility>

namespace services::opener {

namespace {

Viewer& viewer()
{
    static Viewer current;
    return current;
}

} // namespace

bool open(const QString& path)
{
    return viewer() ? viewer()(path) : QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

Viewer setViewer(Viewer next)
{
    return std::exchange(viewer(), std::move(next));
}

} // namespace services::opener
