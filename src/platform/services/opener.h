#pragma once

#include <QString>

#include <functional>

/// Opening a document with the program that the machine has for it.
namespace services::opener {

/// False when nothing opened it. Does not wait for the document to be closed.
bool open(const QString& path);

/// Takes the documents in place of the machine. Empty gives them back to it.
using Viewer = std::function<bool(const QString& path)>;
Viewer setViewer(Viewer viewer);

} // namespace services::opener
