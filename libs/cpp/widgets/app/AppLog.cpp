// The message handlers of an App.
#include "App.h"

#include "Literals.h"
#include <cstdlib>
#include <QDateTime>
#include <QFile>
#include <QLocale>
#include <QtGlobal>

namespace QMWidgets {

namespace {

const char *levelWord(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return " Debug: ";
    case QtInfoMsg:
        return " Info: ";
    case QtWarningMsg:
        return " Warning: ";
    case QtCriticalMsg:
        return " Critical: ";
    case QtFatalMsg:
        return " Fatal: ";
    }
    return " Debug: ";
}

void appendToLog(const QByteArray &line)
{
    // What the file classes themselves have to say while a line is written would come back here.
    static thread_local bool busy = false;
    if (busy) {
        return;
    }
    busy = true;
    QFile file(App::supportDirectory(true) + u"protocol.log"_qs);
    if (file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text)) {
        file.write(line);
    }
    busy = false;
}

void terminalOutputToFile(
    QtMsgType type, const QMessageLogContext &context, const QString &strMessage)
{
    appendToLog(QLocale::c().toString(QDateTime::currentDateTime(), u"dd.MM.yy-hh:mm"_qs).toUtf8()
        + levelWord(type) + strMessage.toUtf8() + ", " + context.file + '\n');
    if (type == QtFatalMsg) {
        std::abort();
    }
}

void terminalOutputToDummy(QtMsgType, const QMessageLogContext &, const QString &) { }

}

void App::enableTerminalOuput()
{
    qInstallMessageHandler(nullptr);
}

void App::disableTerminalOuput()
{
    qInstallMessageHandler(terminalOutputToDummy);
}

void App::setTerminalOuputToFile()
{
    qInstallMessageHandler(terminalOutputToFile);
}

} // namespace QMWidgets
