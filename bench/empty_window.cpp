// The raw side of the start: a Qt program with a window and nothing in it, or only the text of its argument.

#include "bench/shown.h"

#include <QApplication>
#include <QLabel>
#include <QMainWindow>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QMainWindow window;
    if (argc > 1)
        window.setCentralWidget(new QLabel(application.arguments().at(1)));
    const talor::bench::TellsWhenShown tells(window);
    window.showMaximized();
    return QApplication::exec();
}
