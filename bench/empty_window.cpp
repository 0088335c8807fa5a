// The raw side of the start: a Qt program with a window and nothing in it.

#include "bench/shown.h"

#include <QApplication>
#include <QMainWindow>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QMainWindow window;
    const talor::bench::TellsWhenShown tells(window);
    window.showMaximized();
    return QApplication::exec();
}
