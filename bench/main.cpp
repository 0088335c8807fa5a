// talor_bench [--filter=TEXT] [--results=FILE]: measures the program beside the same work written straight on SQLite
// and QPainter, and prints a table of the ratios.

#include "bench/cases.h"
#include "bench/table.h"
#include "platform/store/error.h"
#include "shell/application.h"

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

QString option(const QStringList& arguments, const QString& name)
{
    for (const QString& argument : arguments) {
        if (argument.startsWith(name))
            return argument.mid(name.size());
    }
    return {};
}

/// The platform without a screen tells at every window what it cannot do.
void hush(QtMsgType, const QMessageLogContext&, const QString& message)
{
    if (!message.startsWith(u"This plugin does not support") && !message.startsWith(u"QStandardPaths: XDG_RUNTIME_DIR"))
        std::fprintf(stderr, "%s\n", qUtf8Printable(message));
}

} // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(hush);
    talor::Application application(argc, argv);
    char mixed[] = "--benchmark_enable_random_interleaving=true";
    char* options[] = {argv[0], mixed};
    int count = 2;
    benchmark::Initialize(&count, options);
    try {
        using namespace talor::bench;
        addStore();
        addSale();
        addEntry();
        addInvoicing();
        addLists();
        addPaper();
        addStart();
        addUpkeep();
        const QStringList arguments = application.arguments().mid(1);
        return run(option(arguments, u"--filter="_s).toStdString(), option(arguments, u"--results="_s)) ? EXIT_SUCCESS
                                                                                                        : EXIT_FAILURE;
    } catch (const store::Error& error) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(error.text()));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
    }
    return EXIT_FAILURE;
}
