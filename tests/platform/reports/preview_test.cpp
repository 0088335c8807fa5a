#include "platform/reports/layout.h"
#include "platform/reports/page_view.h"
#include "platform/reports/preview.h"
#include "tests/platform/reports/samples.h"
#include "tests/support/print.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

reports::Document invoice(int lines)
{
    MemorySource source = samples::everything(lines);
    return reports::layOut(reports::Template::load(QStringLiteral(TALOR_SOURCE_DIR "/reports/Facture.RPT")), source,
                           reports::Request());
}

TEST(Apercu, Look)
{
    reports::Apercu window(invoice(80), u"Facture N° 12 / 2026"_s);
    window.show();
    window.grab().save(u"/tmp/rpt/apercu1.png"_s);
    QTest::keyClick(&window, Qt::Key_PageDown);
    window.view()->fit(reports::PageView::Zoom::PageWidth);
    window.grab().save(u"/tmp/rpt/apercu2.png"_s);
}

} // namespace
