#include "LameTransCoder.h"

#include "App.h"
#include "Literals.h"
#include <QDebug>
#include <QProcess>

namespace QMMultiMedia {

LameTransCoder::LameTransCoder(
    const QString &tool, const QString &cover, const QString &input, QObject *parent)
    : QObject(parent)
    , m_strTool(tool)
    , m_strCover(cover)
    , m_strInput(input)
{
}

void LameTransCoder::start()
{
    QString output = QMWidgets::App::supportDirectory(true);
    output.replace(u" "_qs, u"\\ "_qs);
    output += u"test.mp3"_qs;
    const QString command = m_strTool + u" --ti "_qs + m_strCover + u" -b 8 --cbr "_qs + m_strInput
        + u" "_qs + output;
    qDebug().noquote() << "Command:" << command;

    QStringList words = QProcess::splitCommand(u"/bin/bash -c \""_qs + command + u"\""_qs);
    const QString shell = words.takeFirst();
    QProcess::startDetached(shell, words);
    constexpr int limitMs = 30000;
    QProcess idle;
    idle.waitForStarted(limitMs);
    idle.waitForFinished(limitMs);
    qDebug() << "!!!END";
}

}
