#include "EBUInfo.h"

#include "App.h"
#include "Literals.h"
#include "Production.h"
#include "QByteArrayExtensions.h"
#include "StdioFile.h"
#include <algorithm>
#include <cstring>
#include <QByteArray>
#include <QCoreApplication>
#include <QDate>
#include <QDebug>
#include <QtEndian>
#include <QTime>

namespace QMMultiMedia {

namespace {

constexpr int descriptionSize = 256;
constexpr int originatorSize = 32;
constexpr int referenceSize = 32;
constexpr int dateSize = 10;
constexpr int timeSize = 8;

/// Zero characters with the value over the beginning.
QString field(const QString &value, int width)
{
    return value.leftJustified(width, QChar(0));
}

/// The text up to its first zero character, for the log.
QString shown(const QString &text)
{
    return text.left(text.indexOf(QChar(0)));
}

template <typename T> void append(QByteArray *bytes, T value)
{
    const T little = qToLittleEndian(value);
    bytes->append(reinterpret_cast<const char *>(&little), sizeof little);
}

void appendText(QByteArray *bytes, const QString &text, int width)
{
    bytes->append(text.toLocal8Bit().leftJustified(width, '\0', true));
}

}

EBUInfo::EBUInfo()
{
    setDescription(QString());
    setOriginator(QString());
    setOriginationRef(QString());
    setOriginationDate(u"0000-00-00"_qs);
    setOriginationTime(u"00:00:00"_qs);
}

EBUInfo::EBUInfo(long long timeReference, float fps)
    : EBUInfo()
{
    setTimeReference(timeReference);
    m_fps = fps;
    setDescription(u"sSPEED="_qs + QString::number(fps, 'g', 6));
}

void EBUInfo::setDescription(const QString &description)
{
    m_strDescription = field(description, descriptionSize);
}

void EBUInfo::setOriginator(const QString &originator)
{
    m_strOriginator = field(originator, originatorSize);
}

void EBUInfo::setOriginationRef(const QString &reference)
{
    m_strOriginationRef = field(reference, referenceSize);
}

void EBUInfo::setOriginationDate(const QString &date)
{
    m_strOriginationDate = field(date, dateSize);
}

void EBUInfo::setOriginationTime(const QString &time)
{
    m_strOriginationTime = field(time, timeSize);
}

void EBUInfo::setTimeReference(const long long &samples)
{
    const auto bits = static_cast<std::uint64_t>(samples);
    m_nTimeReferenceLow = static_cast<std::uint32_t>(bits);
    m_nTimeReferenceHigh = static_cast<std::uint32_t>(bits >> 32U);
}

long long EBUInfo::timeReference() const
{
    return static_cast<long long>(
        static_cast<std::uint64_t>(m_nTimeReferenceHigh) << 32U | m_nTimeReferenceLow);
}

void EBUInfo::setUMID(int index, char value)
{
    if (index >= 0 && index < umidSize) {
        m_umid[static_cast<std::size_t>(index)] = value;
    }
}

char EBUInfo::umid(int index) const
{
    return index >= 0 && index < umidSize ? m_umid[static_cast<std::size_t>(index)] : '\0';
}

int EBUInfo::size() const
{
    return fixedSize + m_strCodingHistory.toLocal8Bit().size();
}

QString EBUInfo::umidsString() const
{
    QString text;
    for (int line = 0; line < umidSize; line += 8) {
        const auto byte
            = [this, line](int i) { return static_cast<unsigned char>(umid(line + i)); };
        text += QString::asprintf("%02x %02x %02x %02x %02x %02x %02x %02x\n", byte(0), byte(1),
            byte(2), byte(3), byte(4), byte(5), byte(6), byte(7));
    }
    return text;
}

QString EBUInfo::scene() const
{
    QStringList keys {u"SCENE="_qs};
    return searchForTemplates(keys);
}

QString EBUInfo::take() const
{
    QStringList keys {u"TAKE="_qs};
    return searchForTemplates(keys);
}

QString EBUInfo::userBits() const
{
    QStringList keys {u"UBITS=$"_qs, u"gUBITS="_qs};
    return searchForTemplates(keys);
}

QString EBUInfo::searchForTemplates(QStringList & /*keys*/) const
{
    return QString(u""_qs);
}

void EBUInfo::fill(const QString &path, int sampleRate, int bitsPerSample, int channels)
{
    setOriginator(u"VELMORA"_qs);
    setOriginationRef(QCoreApplication::applicationName() + u':');
    m_nVersion = 1;
    const QDate date = QDate::currentDate();
    setOriginationDate(QString::asprintf("%04d-%02d-%02d", date.year(), date.month(), date.day()));
    const QTime time = QTime::currentTime();
    setOriginationTime(
        QString::asprintf("%02d:%02d:%02d", time.hour(), time.minute(), time.second()));
    fillDescription(path);
    updateHistory(sampleRate, bitsPerSample, channels);
}

void EBUInfo::fillDescription(const QString & /*path*/)
{
    const QString lineEnd = u"\r\n"_qs;
    QString bits = userBits();
    if (bits.isEmpty()) {
        const QDate date = QDate::currentDate();
        bits = QString::asprintf("%02d%02d%02d%02d", date.day(), date.month(), date.year(), 0);
        bits.truncate(8);
    }
    const float rate = static_cast<int>(m_fps) == 0 ? Production::fps() : m_fps;
    const QString rateText = QString::asprintf("%6.3f", static_cast<double>(rate)).left(6);

    QString text = u"sUBITS=$"_qs + bits + lineEnd + u"sSPEED="_qs + rateText + u"-ND"_qs + lineEnd;
    if (!take().isEmpty()) {
        text += u"sTAKE="_qs + take() + lineEnd;
    }
    if (!scene().isEmpty()) {
        text += u"sSCENE="_qs + scene() + lineEnd;
    }
    text += u"sSWVER="_qs + QCoreApplication::applicationVersion() + u'.' + QMWidgets::App::build()
        + lineEnd;
    text += u"sFILENAME="_qs + lineEnd;
    text += u"sPROJECTNAME="_qs + replaceSpacesWith(Production::projectName(), '_') + lineEnd;
    text += u"sTRK="_qs + lineEnd + u"sNOTE="_qs + lineEnd;
    setDescription(text);
}

void EBUInfo::updateHistory(int sampleRate, int bitsPerSample, int channels)
{
    QString mode = QString::number(channels) + u"CH"_qs;
    if (channels == 1) {
        mode = u"mono"_qs;
    } else if (channels == 2) {
        mode = u"stereo"_qs;
    }
    m_strCodingHistory += u"A=PCM,F="_qs + QString::number(sampleRate) + u",W="_qs
        + QString::number(bitsPerSample) + u",M="_qs + mode + u",T=\r\n"_qs;
}

QString EBUInfo::replaceSpacesWith(const QString &text, char replacement)
{
    QString result = text;
    return result.replace(QLatin1Char(' '), QLatin1Char(replacement));
}

bool EBUInfo::save(std::FILE *file) const
{
    const QByteArray history = m_strCodingHistory.toLocal8Bit();
    QByteArray bytes;
    bytes.reserve(8 + fixedSize + history.size());
    bytes.append("bext", 4);
    append(&bytes, static_cast<std::uint32_t>(fixedSize + history.size()));
    appendText(&bytes, m_strDescription, descriptionSize);
    appendText(&bytes, m_strOriginator, originatorSize);
    appendText(&bytes, m_strOriginationRef, referenceSize);
    appendText(&bytes, m_strOriginationDate, dateSize);
    appendText(&bytes, m_strOriginationTime, timeSize);
    append(&bytes, m_nTimeReferenceLow);
    append(&bytes, m_nTimeReferenceHigh);
    append(&bytes, static_cast<std::uint16_t>(m_nVersion));
    bytes.append(m_umid.data(), umidSize);
    bytes.append(m_reserved.data(), reservedSize);
    bytes.append(history);
    const auto size = static_cast<std::size_t>(bytes.size());
    return std::fwrite(bytes.constData(), 1, size, file) == size;
}

bool EBUInfo::save(const char *path) const
{
    StdioFile file(path, "we");
    if (!file.isOpen()) {
        qDebug() << "EBUInfo::save: file create error";
        return false;
    }
    const bool saved = save(file.get());
    return file.close() && saved;
}

bool EBUInfo::load(const char *path)
{
    const StdioFile file(path, "re");
    if (!file.isOpen()) {
        qDebug() << "EBUInfo::load: file open error";
        return false;
    }
    std::array<char, 8> header {};
    if (std::fread(header.data(), 1, header.size(), file.get()) != header.size()
        || std::memcmp(header.data(), "bext", 4) != 0) {
        return false;
    }
    setChunkSize(static_cast<int>(qFromLittleEndian<std::uint32_t>(header.data() + 4)));
    initFromHeader(file.get());
    return true;
}

void EBUInfo::initFromHeader(std::FILE *file)
{
    std::array<char, fixedSize> body {};
    const bool whole = std::fread(body.data(), 1, body.size(), file) == body.size();
    const char *at = body.data();
    const auto text = [&at](int width) {
        QString value = MTools::QByteArrayExtensions::arrToString(at, width);
        at += width;
        return value;
    };
    setDescription(text(descriptionSize));
    setOriginator(text(originatorSize));
    setOriginationRef(text(referenceSize));
    setOriginationDate(text(dateSize));
    setOriginationTime(text(timeSize));
    m_nTimeReferenceLow = qFromLittleEndian<std::uint32_t>(at);
    m_nTimeReferenceHigh = qFromLittleEndian<std::uint32_t>(at + 4);
    m_nVersion = qFromLittleEndian<std::uint16_t>(at + 8);
    at += 10;
    std::memcpy(m_umid.data(), at, m_umid.size());
    std::memcpy(m_reserved.data(), at + umidSize, m_reserved.size());

    // The size isn't to be trusted: the history grows only with what the file really holds.
    QByteArray history;
    int left = whole ? m_nChunkSize - fixedSize : 0;
    std::array<char, 4096> block {};
    while (left > 0) {
        const auto wanted = std::min(static_cast<std::size_t>(left), block.size());
        const std::size_t got = std::fread(block.data(), 1, wanted, file);
        history.append(block.data(), static_cast<int>(got));
        left = got == wanted ? left - static_cast<int>(got) : 0;
    }
    setCodingHistory(
        MTools::QByteArrayExtensions::arrToString(history.constData(), history.size()));
}

void EBUInfo::dump() const
{
    const auto line = [](const char *label, const QString &value) {
        qDebug().nospace().noquote() << label << value;
    };
    qDebug() << "----- EBU Info Begin ------";
    line("Description = ", shown(m_strDescription));
    line("Originator = ", shown(m_strOriginator));
    line("OriginationRef = ", shown(m_strOriginationRef));
    line("OriginationDate = ", shown(m_strOriginationDate));
    line("OriginationTime = ", shown(m_strOriginationTime));
    line("TimeReferenceLow = ", QString::number(m_nTimeReferenceLow));
    line("TimeReferenceHigh = ", QString::number(m_nTimeReferenceHigh));
    line("Version = ", QString::number(m_nVersion));
    line("UMIDS = ", umidsString());
    line("CodingHistory = ", m_strCodingHistory);
    line("Size = ", QString::number(size()));
    line("Fps = ", QString::number(static_cast<double>(m_fps)));
    line("Scene = ", scene());
    line("Take = ", take());
    line("UserBits = ", userBits());
    qDebug() << "----- EBU Info End ------";
}

}
