#pragma once

#include "platform/reports/page_view.h"
#include "platform/reports/preview.h"
#include "tests/support/keys.h"

namespace talor {

/// What the preview that the action opens holds: for each page the title of the window, then its texts. It is left by
/// Escape, and the keys go to the dialog again.
template<class Action> QStringList pagesMontrees(Action action)
{
    QStringList pages;
    {
        const auto apercu = whenOpened<reports::Apercu>([&pages](reports::Apercu& a) {
            for (const reports::Page& page : a.view()->document().pages()) {
                QStringList textes{a.windowTitle()};
                for (const reports::TextRun& run : page.texts)
                    textes += run.text;
                pages += textes.join(u'\n');
            }
            press(a, Qt::Key_Escape);
        });
        action();
    }
    QCoreApplication::processEvents();
    return pages;
}

} // namespace talor
