#include "App.h"
#include "ConsoleArguments.h"
#include "ConsoleProgress.h"
#include "ConsoleRun.h"
#include "FileInput.h"
#include "Literals.h"
#include "ProcessStart.h"
#include "ProgramIdentity.h"
#include "TerminationSignals.h"

#include <cstdio>

int main(int argc, char **argv)
{
    MTools::prepareProcess();
    ensureUtf8FileNames();
    // No window system is needed, and none is asked.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The standard error stream is for the user: what the libraries have to say goes to the log.
    QMWidgets::App::disableTerminalOuput();
    QMWidgets::App app(argc, argv, programOrganisation(), programName());
    initProgramIdentity();
    QMMultiMedia::FileInput::setTempPath(QMWidgets::App::cachesDirectory(false));
    if (!QMWidgets::App::isSigned()) {
        QMWidgets::App::setTerminalOuputToFile();
    }
    const ConsoleArguments arguments
        = ConsoleArguments::parse(QCoreApplication::arguments().mid(1));
    switch (arguments.action) {
    case ConsoleArguments::Action::Help:
        std::fputs(ConsoleArguments::help().toLocal8Bit().constData(), stdout);
        return 0;
    case ConsoleArguments::Action::Version:
        std::printf("%s %s\n", qPrintable(programName()),
            qPrintable(QCoreApplication::applicationVersion()));
        return 0;
    case ConsoleArguments::Action::Wrong:
        std::fprintf(stderr, "calderin-m4a-batch: %s (see --help)\n",
            ConsoleProgress::printable(arguments.message).toLocal8Bit().constData());
        return ConsoleRun::NothingToDo;
    case ConsoleArguments::Action::Run:
        break;
    }
    ConsoleRun run(arguments);
    const TerminationSignals termination(nullptr);
    QObject::connect(
        &termination, &TerminationSignals::requested, &run, &ConsoleRun::slotTerminate);
    return run.exec();
}
