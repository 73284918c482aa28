#include "AFTransCoder.h"

#include "Literals.h"
#include <csignal>
#include <QDebug>
#include <QProcess>
#include <sys/prctl.h>
#include <unistd.h>

namespace QMMultiMedia {

namespace {

/// A child that isn't interrupted together with its parent, and doesn't outlive it.
class ConverterProcess : public QProcess
{
    Q_DISABLE_COPY(ConverterProcess)

public:
    ConverterProcess() = default;

protected:
    // Runs between fork and exec: system calls only.
    void setupChildProcess() override
    {
        // Ctrl-C asks for a stop after the file at hand, so it must not reach the converter.
        ::setpgid(0, 0);
        // The calling thread blocks until the child has ended, so its end is the program's end.
        ::prctl(PR_SET_PDEATHSIG, SIGTERM);
    }
};

}

AFTransCoder::AFTransCoder(QObject *parent)
    : QObject(parent)
{
}

void AFTransCoder::setQuality(const int &quality)
{
    m_nQuality = quality;
}

void AFTransCoder::setBitrate(const int &bitrate)
{
    m_nBitrate = bitrate;
}

QString AFTransCoder::format() const
{
    return u"m4af"_qs;
}

QString AFTransCoder::formatDescription() const
{
    return u"Apple MPEG-4 Audio"_qs;
}

QStringList AFTransCoder::extensions() const
{
    return {u"m4a"_qs, u"m4r"_qs};
}

QStringList AFTransCoder::dataFormats() const
{
    return {u"aac "_qs, u"aace"_qs, u"aacf"_qs, u"aacg"_qs, u"aach"_qs, u"aacl"_qs, u"aacp"_qs,
        u"ac-3"_qs, u"alac"_qs, u"ec-3"_qs, u"paac"_qs, u"pac3"_qs, u"pec3"_qs};
}

QString AFTransCoder::command(const QString &source, const QString &destination) const
{
    return u"afconvert \""_qs + source + u"\" -o \""_qs + destination + u"\" -q "_qs
        + QString::number(m_nQuality) + u" -b "_qs + QString::number(m_nBitrate) + u" -f "_qs
        + format() + u" -d "_qs + dataFormats().first();
}

QStringList AFTransCoder::arguments(const QString &source, const QString &destination) const
{
    const QString combined = command(source, destination);
    if (!source.contains(u'"') && !destination.contains(u'"')) {
        return QProcess::splitCommand(combined);
    }
    // A quote in a name would end the path early and could turn its rest into options.
    return {u"afconvert"_qs, source, u"-o"_qs, destination, u"-q"_qs, QString::number(m_nQuality),
        u"-b"_qs, QString::number(m_nBitrate), u"-f"_qs, format(), u"-d"_qs, dataFormats().first()};
}

void AFTransCoder::convert(const QString &source, const QString &destination)
{
    qDebug().noquote().nospace() << "COMMAND: " << command(source, destination);
    QStringList words = arguments(source, destination);
    const QString program = words.takeFirst();
    {
        ConverterProcess process;
        process.start(program, words, QIODevice::ReadWrite);
        process.waitForFinished(-1);
        qDebug() << "!!!END";
    }
}

}
