#pragma once

#include "platform/reports/paint.h"

#include <QDialog>

#include <functional>

class QHBoxLayout;
class QLabel;
class QPrinter;
class QSpinBox;
class QToolButton;

namespace reports {

class PageView;

/// The window in which every report appears first: it shows the pages, prints them or saves a PDF. Escape closes.
class Apercu : public QDialog
{
    Q_OBJECT

public:
    /// What the window asks the person and the machine for; a program gives its own dialogs, a test its answers.
    struct Services
    {
        /// Lets the person set the printer up, for a document of so many pages. False: no print.
        std::function<bool(QPrinter& printer, int pages, QWidget* parent)> choosePrinter;
        /// Where to save; empty: not at all.
        std::function<QString(const QString& proposed, QWidget* parent)> choosePdf;
        std::function<void(const QString& text, QWidget* parent)> showError;
    };

    /// Qt's own dialogs, until a program puts others in.
    static Services services;

    explicit Apercu(Document document, const QString& title, QWidget* parent = nullptr);

    PageView* view() const { return m_view; }

    void imprimer();
    void enregistrer();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* makeBar();
    QToolButton* addButton(QHBoxLayout* bar, const QString& name, const QString& caption, const QString& tip);
    void addPageControls(QHBoxLayout* bar);
    void addZoomControls(QHBoxLayout* bar);
    void addShortcuts();
    void showPage();
    void showZoom();
    /// Runs a long work over pages with the hourglass, and past two seconds a progress bar that can be cancelled. True
    /// when it was done to its end; what goes wrong is shown.
    bool run(const QString& what, int pages, const std::function<bool(const Progress&)>& work);

    PageView* m_view;
    QSpinBox* m_page = nullptr;
    QLabel* m_zoom = nullptr;
    QLabel* m_notice;
    QList<QToolButton*> m_captioned; ///< buttons that bear a caption where there is room
    QToolButton *m_first = nullptr, *m_previous = nullptr, *m_next = nullptr, *m_last = nullptr;
    QToolButton *m_pageWidth = nullptr, *m_wholePage = nullptr;
};

} // namespace reports
