#include "platform/reports/preview.h"

#include "platform/reports/error.h"
#include "platform/reports/page_view.h"
#include "platform/reports/preview_icons.h"

#include <QApplication>
#include <QBoxLayout>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProgressDialog>
#include <QRegularExpression>
#include <QShortcut>
#include <QSpinBox>
#include <QStandardPaths>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace reports {

namespace {

constexpr int barHeight = 38;

constexpr auto look = R"(
#barre { background: #f5f1e8; border-bottom: 1px solid #d3ccbc; }
#barre QToolButton { border: 1px solid transparent; border-radius: 6px; padding: 0 9px; color: #1d2b36; }
#barre QToolButton:hover { background: #e9e2d2; }
#barre QToolButton:pressed, #barre QToolButton:checked { background: #c7dfee; }
#barre QToolButton:focus { border-color: #2e86c1; }
#barre QToolButton:disabled { color: #a3abb1; }
#barre QLabel { color: #5c6b77; }
#barre #imprimer { background: #ffffff; border-color: #d3ccbc; font-weight: 600; }
#barre #imprimer:hover { background: #e3eef5; }
#barre #imprimer:focus { border-color: #2e86c1; }
#avis { background: #e3eef5; color: #17435e; padding: 6px 12px; }
)";

bool choosePrinterByDialog(QPrinter& printer, int pages, QWidget* parent)
{
    if (QPrinterInfo::availablePrinterNames().isEmpty())
        throw Error(u"Aucune imprimante installée"_s);
    QPrintDialog dialog(&printer, parent);
    dialog.setMinMax(1, pages);
    dialog.setOption(QAbstractPrintDialog::PrintCurrentPage, false);
    return dialog.exec() == QDialog::Accepted;
}

QString choosePdfByDialog(const QString& proposed, QWidget* parent)
{
    return QFileDialog::getSaveFileName(parent, u"Enregistrer en PDF"_s, proposed, u"Documents PDF (*.pdf)"_s);
}

void showErrorInBox(const QString& text, QWidget* parent)
{
    QMessageBox::critical(parent, u"ATTENTION"_s, text);
}

/// The title as the name of a file, in the person's documents.
QString proposedPath(const QString& title)
{
    static const QRegularExpression forbidden(uR"([\\/:*?"<>|\s]+)"_s);
    const QDir folder(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    return folder.filePath(QString(title).replace(forbidden, u" "_s).trimmed() + u".pdf"_s);
}

QFrame* separator()
{
    auto* line = new QFrame;
    line->setFrameShape(QFrame::VLine);
    line->setStyleSheet(u"color: #d3ccbc"_s);
    return line;
}

} // namespace

Apercu::Services Apercu::services = {choosePrinterByDialog, choosePdfByDialog, showErrorInBox};

Apercu::Apercu(Document document, const QString& title, QWidget* parent)
    : QDialog(parent)
    , m_view(new PageView(std::move(document)))
    , m_notice(new QLabel)
{
    setObjectName(u"Apercu"_s);
    setWindowTitle(title);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    setStyleSheet(QString::fromLatin1(look));
    m_view->setObjectName(u"pages"_s);
    m_view->setAccessibleName(u"Pages du document"_s);
    m_notice->setObjectName(u"avis"_s);
    m_notice->hide();

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(makeBar());
    layout->addWidget(m_view, 1);
    layout->addWidget(m_notice);
    addShortcuts();

    connect(m_view, &PageView::currentPageChanged, this, &Apercu::showPage);
    connect(m_view, &PageView::zoomChanged, this, &Apercu::showZoom);
    showPage();
    showZoom();
    resize(980, 720);
    m_view->setFocus();
}

// --- the bar ---------------------------------------------------------------------------------------------------------

QWidget* Apercu::makeBar()
{
    auto* bar = new QWidget;
    bar->setObjectName(u"barre"_s);
    bar->setAttribute(Qt::WA_StyledBackground);
    auto* layout = new QHBoxLayout(bar);
    layout->setContentsMargins(10, 7, 10, 7);
    layout->setSpacing(4);

    connect(addButton(layout, u"imprimer"_s, u"&Imprimer"_s, u"Imprimer (Ctrl+P)"_s), &QToolButton::clicked, this,
            &Apercu::imprimer);
    connect(addButton(layout, u"enregistrer"_s, u"&PDF"_s, u"Enregistrer en PDF (Ctrl+S)"_s), &QToolButton::clicked,
            this, &Apercu::enregistrer);
    layout->addWidget(separator());
    layout->addStretch();
    addPageControls(layout);
    layout->addStretch();
    layout->addWidget(separator());
    addZoomControls(layout);
    layout->addWidget(separator());
    connect(addButton(layout, u"fermer"_s, u"&Fermer"_s, u"Fermer (Échap)"_s), &QToolButton::clicked, this,
            &Apercu::close);
    return bar;
}

QToolButton* Apercu::addButton(QHBoxLayout* bar, const QString& name, const QString& caption, const QString& tip)
{
    auto* button = new QToolButton;
    button->setObjectName(name);
    button->setIcon(previewIcon(name));
    button->setIconSize(QSize(20, 20));
    button->setText(caption);
    if (!caption.isEmpty())
        m_captioned.append(button);
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    button->setMinimumSize(barHeight, barHeight);
    button->setFocusPolicy(Qt::TabFocus);
    bar->addWidget(button);
    return button;
}

/// On a narrow screen pictures alone are better than captions that are cut.
void Apercu::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    const bool isNarrow = width() < fontMetrics().averageCharWidth() * 105;
    for (QToolButton* button : std::as_const(m_captioned))
        button->setToolButtonStyle(isNarrow ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextBesideIcon);
}

void Apercu::addPageControls(QHBoxLayout* bar)
{
    const int pages = m_view->document().pageCount();
    const auto turn = [this](QToolButton* button, const std::function<int()>& target) {
        connect(button, &QToolButton::clicked, this, [this, target] { m_view->goToPage(target()); });
    };
    m_first = addButton(bar, u"premiere"_s, {}, u"Première page (Début)"_s);
    m_previous = addButton(bar, u"precedente"_s, {}, u"Page précédente (Page haut)"_s);

    m_page = new QSpinBox;
    m_page->setObjectName(u"numeroPage"_s);
    m_page->setAccessibleName(u"Numéro de la page"_s);
    m_page->setPrefix(u"Page "_s);
    m_page->setSuffix(u" / %1"_s.arg(pages));
    m_page->setRange(1, std::max(1, pages));
    m_page->setButtonSymbols(QAbstractSpinBox::NoButtons);
    m_page->setAlignment(Qt::AlignCenter);
    m_page->setMinimumHeight(barHeight - 4);
    m_page->setMinimumWidth(m_page->sizeHint().width() + 16);
    m_page->setFocusPolicy(Qt::ClickFocus);
    m_page->setKeyboardTracking(false);
    bar->addWidget(m_page);
    connect(m_page, &QSpinBox::valueChanged, this, [this](int page) { m_view->goToPage(page - 1); });
    connect(m_page, &QSpinBox::editingFinished, m_view, qOverload<>(&QWidget::setFocus));

    m_next = addButton(bar, u"suivante"_s, {}, u"Page suivante (Page bas)"_s);
    m_last = addButton(bar, u"derniere"_s, {}, u"Dernière page (Fin)"_s);
    turn(m_first, [] { return 0; });
    turn(m_previous, [this] { return m_view->currentPage() - 1; });
    turn(m_next, [this] { return m_view->currentPage() + 1; });
    turn(m_last, [pages] { return pages - 1; });
}

void Apercu::addZoomControls(QHBoxLayout* bar)
{
    connect(addButton(bar, u"moins"_s, {}, u"Réduire (Ctrl -)"_s), &QToolButton::clicked, m_view, &PageView::zoomOut);
    m_zoom = new QLabel;
    m_zoom->setObjectName(u"zoom"_s);
    m_zoom->setAlignment(Qt::AlignCenter);
    m_zoom->setMinimumWidth(m_zoom->fontMetrics().horizontalAdvance(u"400 %"_s) + 12);
    bar->addWidget(m_zoom);
    connect(addButton(bar, u"plus"_s, {}, u"Agrandir (Ctrl +)"_s), &QToolButton::clicked, m_view, &PageView::zoomIn);

    m_pageWidth = addButton(bar, u"largeur"_s, {}, u"Toute la largeur (Ctrl+1)"_s);
    m_wholePage = addButton(bar, u"pageEntiere"_s, {}, u"Page entière (Ctrl+0)"_s);
    for (QToolButton* button : {m_pageWidth, m_wholePage})
        button->setCheckable(true);
    connect(m_pageWidth, &QToolButton::clicked, this, [this] { m_view->fit(PageView::Zoom::PageWidth); });
    connect(m_wholePage, &QToolButton::clicked, this, [this] { m_view->fit(PageView::Zoom::WholePage); });
}

void Apercu::addShortcuts()
{
    const auto on = [this](const QKeySequence& keys, const std::function<void()>& action) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
    };
    on(Qt::Key_PageDown, [this] { m_view->goToPage(m_view->currentPage() + 1); });
    on(Qt::Key_PageUp, [this] { m_view->goToPage(m_view->currentPage() - 1); });
    on(Qt::Key_Home, [this] { m_view->goToPage(0); });
    on(Qt::Key_End, [this] { m_view->goToPage(m_view->document().pageCount() - 1); });
    on(QKeySequence::ZoomIn, [this] { m_view->zoomIn(); });
    on(QKeySequence::ZoomOut, [this] { m_view->zoomOut(); });
    on(Qt::CTRL | Qt::Key_0, [this] { m_view->fit(PageView::Zoom::WholePage); });
    on(Qt::CTRL | Qt::Key_1, [this] { m_view->fit(PageView::Zoom::PageWidth); });
    on(QKeySequence::Print, [this] { imprimer(); });
    on(QKeySequence::Save, [this] { enregistrer(); });
}

void Apercu::showPage()
{
    const int page = m_view->currentPage(), pages = m_view->document().pageCount();
    const QSignalBlocker blocker(m_page);
    m_page->setValue(page + 1);
    m_first->setEnabled(page > 0);
    m_previous->setEnabled(page > 0);
    m_next->setEnabled(page + 1 < pages);
    m_last->setEnabled(page + 1 < pages);
}

void Apercu::showZoom()
{
    m_zoom->setText(u"%1 %"_s.arg(qRound(m_view->zoomFactor() * 100)));
    m_pageWidth->setChecked(m_view->zoom() == PageView::Zoom::PageWidth);
    m_wholePage->setChecked(m_view->zoom() == PageView::Zoom::WholePage);
}

// --- printing and saving ---------------------------------------------------------------------------------------------

bool Apercu::run(const QString& what, int pages, const std::function<bool(const Progress&)>& work)
{
    m_notice->hide();
    try {
        QProgressDialog progress(what, u"Annuler"_s, 0, pages, this);
        progress.setWindowTitle(windowTitle());
        progress.setWindowModality(Qt::WindowModal);
        progress.setMinimumDuration(2000);
        QApplication::setOverrideCursor(Qt::WaitCursor);
        const auto restore = qScopeGuard([] { QApplication::restoreOverrideCursor(); });
        return work([&progress](int done) {
            progress.setValue(done);
            return !progress.wasCanceled();
        });
    } catch (const Error& error) {
        services.showError(error.text(), this);
        return false;
    }
}

void Apercu::imprimer()
{
    const Document& document = m_view->document();
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(windowTitle());
    try {
        if (!services.choosePrinter(printer, document.pageCount(), this))
            return;
    } catch (const Error& error) {
        services.showError(error.text(), this);
        return;
    }
    const bool isRange = printer.printRange() == QPrinter::PageRange && printer.fromPage() > 0;
    const int first = isRange ? printer.fromPage() - 1 : 0;
    const int last = isRange ? std::min(printer.toPage(), document.pageCount()) - 1 : document.pageCount() - 1;
    run(u"Impression en cours…"_s, last - first + 1, [&](const Progress& progress) {
        if (paint(document, printer, first, last, progress))
            return true;
        printer.abort();
        return false;
    });
}

void Apercu::enregistrer()
{
    QString path = services.choosePdf(proposedPath(windowTitle()), this);
    if (path.isEmpty())
        return;
    if (QFileInfo(path).suffix().isEmpty())
        path += u".pdf"_s;
    const bool isSaved = run(u"Enregistrement en cours…"_s, m_view->document().pageCount(),
                             [&](const Progress& progress) { return writePdf(m_view->document(), path, progress); });
    if (isSaved) {
        m_notice->setText(u"Document enregistré : %1"_s.arg(QDir::toNativeSeparators(path)));
        m_notice->show();
    }
}

} // namespace reports
