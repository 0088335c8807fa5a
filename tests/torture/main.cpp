#include "coupures.h"
#include "epreuve.h"
#include "kills.h"
#include "pannes.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>

using namespace Qt::StringLiterals;

/// Kills the postings, cuts their current and makes their disk fail, and each time holds the file against what was
/// announced. Returns 1 on a fault. The number after "graine" repeats a run.
int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QCommandLineParser options;
    options.addHelpOption();
    options.addOption({u"morts"_s, u"Processus tués."_s, u"nombre"_s, u"25"_s});
    options.addOption({u"coupures"_s, u"Coupures de courant."_s, u"nombre"_s, u"120"_s});
    options.addOption({u"pannes"_s, u"Chaque appel de chaque acte en panne, et non un de chaque sorte."_s});
    options.addOption({u"graine"_s, u"Celle d'une autre fois."_s, u"nombre"_s});
    options.process(application);

    const quint32 graine = options.isSet(u"graine"_s) ? options.value(u"graine"_s).toUInt() : std::random_device()();
    std::printf("graine %u\n", graine);
    torture::Banc banc(graine);
    torture::eprouver(banc);
    torture::tuer(banc, options.value(u"morts"_s).toInt());
    torture::couperLeCourant(banc, options.value(u"coupures"_s).toInt());
    torture::provoquerPannes(banc, options.isSet(u"pannes"_s));
    std::printf("%d faute(s)\n", banc.fautes);
    return banc.fautes == 0 ? 0 : 1;
}
