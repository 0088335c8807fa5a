#include "platform/reports/error.h"
#include "platform/reports/layout.h"
#include "platform/reports/page_view.h"
#include "platform/reports/preview.h"
#include "tests/platform/reports/samples.h"
#include "tests/support/print.h"

#include <QPrinter>
#include <QProcess>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QToolButton>
#include <QtTest>

using namespace Qt::StringLiterals;
using reports::Apercu;
using reports::PageView;

namespace {

reports::Document invoice()
{
    MemorySource source = samples::everything(80); // three pages
    return reports::layOut(reports::Template::load(QStringLiteral(TALOR_SOURCE_DIR "/reports/Facture.RPT")), source,
                           reports::Request());
}

/// The preview of a three-page invoice, with answers in place of the dialogs.
class ApercuTest : public testing::Test
{
protected:
    ApercuTest()
    {
        Apercu::services = {[this](QPrinter& printer, int, QWidget*) { return m_choosePrinter(printer); },
                            [this](const QString& proposed, QWidget*) {
                                m_proposed = proposed;
                                return m_pdf;
                            },
                            [this](const QString& text, QWidget*) { m_errors.append(text); }};
        m_window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
    }
    ~ApercuTest() override { Apercu::services = m_before; }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(m_window.focusWidget(), key, modifiers);
    }
    void click(const QString& name)
    {
        auto* button = m_window.findChild<QToolButton*>(name);
        ASSERT_TRUE(button) << name.toStdString();
        QTest::mouseClick(button, Qt::LeftButton);
    }
    int page() const { return m_window.view()->currentPage(); }

    static QString textOfPdf(const QString& path)
    {
        QProcess process;
        process.start(u"pdftotext"_s, {u"-layout"_s, path, u"-"_s});
        EXPECT_TRUE(process.waitForFinished());
        return QString::fromUtf8(process.readAllStandardOutput());
    }

    Apercu::Services m_before = Apercu::services;
    Apercu m_window{invoice(), u"Facture N° 12 / 2026"_s};
    QTemporaryDir m_folder;
    std::function<bool(QPrinter&)> m_choosePrinter = [](QPrinter&) { return false; };
    QString m_pdf, m_proposed;
    QStringList m_errors;
};

TEST_F(ApercuTest, TurnsPagesByKeysButtonsAndNumber)
{
    auto* number = m_window.findChild<QSpinBox*>(u"numeroPage"_s);
    EXPECT_EQ(number->text(), u"Page 1 / 3"_s);
    press(Qt::Key_PageDown);
    EXPECT_EQ(page(), 1);
    EXPECT_EQ(number->text(), u"Page 2 / 3"_s);
    press(Qt::Key_End);
    press(Qt::Key_PageDown); // no further
    EXPECT_EQ(page(), 2);
    EXPECT_FALSE(m_window.findChild<QToolButton*>(u"suivante"_s)->isEnabled());
    press(Qt::Key_PageUp);
    EXPECT_EQ(page(), 1);
    press(Qt::Key_Home);
    EXPECT_EQ(page(), 0);
    click(u"suivante"_s);
    click(u"derniere"_s);
    EXPECT_EQ(page(), 2);
    click(u"precedente"_s);
    EXPECT_EQ(page(), 1);
    number->setValue(3);
    EXPECT_EQ(page(), 2);
    click(u"premiere"_s);
    EXPECT_EQ(page(), 0);
}

TEST_F(ApercuTest, KeepsItsPageWhenItsSizeChanges)
{
    press(Qt::Key_End);
    for (const auto zoom : {PageView::Zoom::PageWidth, PageView::Zoom::WholePage}) {
        m_window.view()->fit(zoom);
        m_window.resize(m_window.width() - 150, m_window.height() - 100);
        QApplication::processEvents();
        EXPECT_EQ(page(), 2);
    }
}

TEST_F(ApercuTest, ZoomsByWheelKeysAndButtons)
{
    PageView* view = m_window.view();
    const double whole = view->zoomFactor();
    EXPECT_EQ(view->zoom(), PageView::Zoom::WholePage);
    press(Qt::Key_1, Qt::ControlModifier);
    EXPECT_EQ(view->zoom(), PageView::Zoom::PageWidth);
    EXPECT_GT(view->zoomFactor(), whole);
    press(Qt::Key_0, Qt::ControlModifier);
    EXPECT_DOUBLE_EQ(view->zoomFactor(), whole);
    click(u"plus"_s);
    EXPECT_GT(view->zoomFactor(), whole);
    EXPECT_EQ(view->zoom(), PageView::Zoom::Free);
    click(u"moins"_s);
    click(u"moins"_s);
    EXPECT_LT(view->zoomFactor(), whole);

    const double before = view->zoomFactor();
    const QPointF at(100, 100);
    QWheelEvent wheel(at, view->viewport()->mapToGlobal(at), {}, QPoint(0, 120), Qt::NoButton, Qt::ControlModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(view->viewport(), &wheel);
    EXPECT_NEAR(view->zoomFactor(), before * 1.1, 1e-9);
    EXPECT_EQ(m_window.findChild<QLabel*>(u"zoom"_s)->text(), u"%1 %"_s.arg(qRound(before * 110)));
}

TEST_F(ApercuTest, ScrollingShowsWhichPageIsInView)
{
    m_window.view()->setZoomFactor(1);
    QScrollBar* bar = m_window.view()->verticalScrollBar();
    bar->setValue(bar->maximum() / 2);
    EXPECT_EQ(page(), 1);
    bar->setValue(bar->maximum());
    EXPECT_EQ(page(), 2);
}

TEST_F(ApercuTest, SavesAPdfWhereItIsTold)
{
    m_pdf = m_folder.filePath(u"ma facture"_s); // the ending comes by itself
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(m_proposed.endsWith(u"/Facture N° 12 2026.pdf"_s)) << m_proposed.toStdString();
    EXPECT_TRUE(textOfPdf(m_pdf + u".pdf"_s).contains(u"Page 3 / 3"_s));
    EXPECT_EQ(m_window.findChild<QLabel*>(u"avis"_s)->text(), u"Document enregistré : %1.pdf"_s.arg(m_pdf));
    EXPECT_EQ(m_errors, QStringList());
}

TEST_F(ApercuTest, TellsWhenThePdfCannotBeWrittenAndStays)
{
    m_pdf = u"/nulle/part/facture.pdf"_s;
    click(u"enregistrer"_s);
    ASSERT_EQ(m_errors.size(), 1);
    EXPECT_TRUE(m_errors[0].startsWith(u"Le fichier 'facture.pdf' n'a pas pu être écrit"_s))
        << m_errors[0].toStdString();
    EXPECT_TRUE(m_window.isVisible());
    EXPECT_FALSE(m_window.findChild<QLabel*>(u"avis"_s)->isVisible());
}

TEST_F(ApercuTest, PrintsThePagesChosenOnThePrinterChosen)
{
    const QString paper = m_folder.filePath(u"papier.pdf"_s);
    m_choosePrinter = [&](QPrinter& printer) {
        printer.setOutputFileName(paper);
        printer.setPrintRange(QPrinter::PageRange);
        printer.setFromTo(2, 3);
        return true;
    };
    click(u"imprimer"_s);
    EXPECT_EQ(m_errors, QStringList());
    const QStringList pages = textOfPdf(paper).split(u'\f', Qt::SkipEmptyParts);
    ASSERT_EQ(pages.size(), 2);
    EXPECT_TRUE(pages[0].contains(u"Page 2 / 3"_s));
    EXPECT_TRUE(pages[1].contains(u"Page 3 / 3"_s));
}

TEST_F(ApercuTest, TellsWhenThereIsNoPrinter)
{
    m_choosePrinter = [](QPrinter&) -> bool { throw reports::Error(u"Aucune imprimante installée"_s); };
    press(Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(m_errors, QStringList{u"Aucune imprimante installée"_s});
}

TEST_F(ApercuTest, EveryButtonIsLargeEnoughAndReachedByTheKeyboard)
{
    const auto buttons = m_window.findChildren<QToolButton*>();
    EXPECT_EQ(buttons.size(), 11);
    for (const QToolButton* button : buttons) {
        EXPECT_GE(button->height(), 36) << button->objectName().toStdString();
        EXPECT_TRUE(button->focusPolicy() & Qt::TabFocus);
        EXPECT_FALSE(button->icon().isNull()) << button->objectName().toStdString();
        EXPECT_FALSE(button->accessibleName().isEmpty());
    }
    EXPECT_LE(m_window.minimumSizeHint().width(), 683); // a small screen at twice the size
    press(Qt::Key_Escape);
    EXPECT_FALSE(m_window.isVisible());
}

} // namespace
