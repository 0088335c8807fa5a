#pragma once

#include "platform/reports/document.h"

#include <QStringList>

/// What a page says: its texts line by line from the top, those of one line from left to right with " | " between them.
QStringList linesOf(const reports::Document& document, int page);
/// All pages, with "--- n/N" in front of each.
QStringList linesOf(const reports::Document& document);
/// The same with the places in millimetres: "<y>: <x> text | <x> text".
QStringList placesOf(const reports::Document& document);
