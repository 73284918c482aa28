#include "FileInput.h"

#include "FileUtil.h"
#include "Literals.h"
#include "QByteArrayExtensions.h"
#include "Util.h"
#include <algorithm>
#include <cstddef>
#include <cstring>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <sys/stat.h>

namespace QMMultiMedia {

namespace {

constexpr std::int64_t sampleHeaderSize = 8;
constexpr int smallestFile = 40;
constexpr int samplesPerBlock = 16384;

QList<FileInput *> &liveInputs()
{
    static QList<FileInput *> inputs;
    return inputs;
}

QString &cachePath()
{
    static QString path;
    return path;
}

bool isBigEnoughRegularFile(const char *path)
{
    struct stat status = {};
    return ::stat(path, &status) == 0 && S_ISREG(status.st_mode) && status.st_size >= smallestFile;
}

}

bool Chunk::is(const char *name) const
{
    return std::memcmp(id.data(), name, id.size()) == 0;
}

FileInput::FileInput()
    : m_peakVector(std::make_unique<PeakVector>().release())
    , m_strEnvelopesDirectory(u"Envelopes"_qs)
{
    liveInputs().append(this);
}

FileInput::~FileInput()
{
    FileInput::close();
    liveInputs().removeAll(this);
}

QList<FileInput *> FileInput::filesInUse()
{
    return liveInputs();
}

void FileInput::setTempPath(const QString &path)
{
    cachePath() = path;
}

QString FileInput::tempPath()
{
    return cachePath();
}

QString FileInput::tempFilePath()
{
    return tempPath() + u"/AudioTemp/"_qs;
}

QString FileInput::tempFilePathAndName() const
{
    if (tempPath().isEmpty()) {
        return {};
    }
    QDir().mkpath(tempFilePath());
    QString fileName = fileInfo().url().path();
    return tempFilePath() + fileName.replace(u'/', u'_').replace(u':', u'_');
}

bool FileInput::readChunk(Chunk *chunk, int swap)
{
    *chunk = Chunk();
    if (m_pFile == nullptr || std::fread(chunk->id.data(), chunk->id.size(), 1, m_pFile) != 1
        || std::fread(&chunk->size, sizeof chunk->size, 1, m_pFile) != 1) {
        return false;
    }
    if (swap != 0) {
        chunk->size = FileUtil::swapL(chunk->size);
    }
    return true;
}

bool FileInput::load(const char *path, bool force)
{
    const QString filePath = QFile::decodeName(path);
    if (!force) {
        const QStringList endings = extentions().toLower().split(u' ', Qt::SkipEmptyParts);
        const QString lowered = filePath.toLower();
        const bool known = std::any_of(endings.begin(), endings.end(),
            [&lowered](const QString &ending) { return lowered.endsWith(ending); });
        if (!known) {
            return false;
        }
    }
    if (!isBigEnoughRegularFile(path)) {
        return false;
    }
    close();
    m_ebuInfo = nullptr;
    m_ebuEnvelope = nullptr;
    m_ltcData = nullptr;
    m_nEnvelopeOffset = 0;
    m_nEndOfData = 0;
    m_nPosition = 0;
    m_peakVector->clear();
    m_peakInfoCache.reset();
    if (!open(path)) {
        return false;
    }
    m_fileInfo = fileInfo();
    m_nEndOfData = static_cast<std::int64_t>(m_fileInfo.dataOffset() + m_fileInfo.dataSize())
        + sampleHeaderSize;
    m_fileInfo.setURL(QUrl::fromLocalFile(filePath));
    return true;
}

bool FileInput::openStream(const char *path)
{
    m_pFile = std::fopen(path, "re");
    if (m_pFile == nullptr) {
        return false;
    }
    struct stat status = {};
    m_nFileLength = ::fstat(fileno(m_pFile), &status) == 0 ? status.st_size : 0;
    return true;
}

bool FileInput::seekStream(std::int64_t offset)
{
    return m_pFile != nullptr && offset >= 0
        && fseeko(m_pFile, static_cast<off_t>(offset), SEEK_SET) == 0;
}

std::int64_t FileInput::streamPosition() const
{
    return m_pFile != nullptr ? static_cast<std::int64_t>(ftello(m_pFile)) : -1;
}

std::int64_t FileInput::bytesBehind(std::int64_t offset) const
{
    return std::max<std::int64_t>(m_nFileLength - offset, 0);
}

bool FileInput::hasUsableFormat() const
{
    return m_settings.channels() > 0 && m_settings.bytesPerSample() > 0;
}

void FileInput::countSamples()
{
    const int bytes = m_settings.bytesPerSample();
    m_fileInfo.setNumSamples(bytes > 0 ? m_fileInfo.dataSize() / static_cast<quint64>(bytes) : 0);
}

bool FileInput::readText(std::int64_t size, QString *text)
{
    constexpr std::int64_t longest = 1024LL * 1024;
    if (size > bytesBehind(streamPosition())) {
        return false;
    }
    QByteArray bytes(static_cast<int>(std::clamp<std::int64_t>(size, 0, longest)), '\0');
    const auto wanted = static_cast<std::size_t>(bytes.size());
    if (std::fread(bytes.data(), 1, wanted, m_pFile) != wanted) {
        return false;
    }
    *text = MTools::QByteArrayExtensions::arrToString(bytes.constData(), bytes.size());
    return true;
}

int FileInput::read(char *bytes, int n)
{
    const std::int64_t place = streamPosition();
    if (place < 0 || place >= m_nEndOfData || n <= 0) {
        return 0;
    }
    const auto wanted = static_cast<std::size_t>(std::min<std::int64_t>(n, m_nEndOfData - place));
    const std::size_t got = std::fread(bytes, 1, wanted, m_pFile);
    m_nPosition = streamPosition();
    return static_cast<int>(got);
}

int FileInput::read(const MTools::Handle<RawBuffer> &buffer)
{
    return read(buffer->data(), buffer->size());
}

int FileInput::read(const MTools::Handle<AudioFloatBuffer> &buffer)
{
    const int frameSize = buffer->frameSize();
    return frameSize > 0 ? read(buffer->data(), buffer->size()) / frameSize : 0;
}

int FileInput::read(const MTools::Handle<AudioFloatBuffer> &buffer, unsigned long frame)
{
    const auto bytesPerFrame
        = static_cast<std::int64_t>(buffer->frameSize()) * settings().bytesPerSample();
    if (bytesPerFrame <= 0 || frame > static_cast<unsigned long>(m_nFileLength / bytesPerFrame)
        || !seekData(static_cast<std::int64_t>(frame) * bytesPerFrame)) {
        return 0;
    }
    return read(buffer);
}

int FileInput::read(float *samples, int n)
{
    const int bytesPerSample = m_settings.bytesPerSample();
    if (m_pFile == nullptr || bytesPerSample == 0) {
        return 0;
    }
    m_raw.resize(static_cast<std::size_t>(samplesPerBlock) * 4);
    m_ints.resize(samplesPerBlock);
    int done = 0;
    while (done < n) {
        const int wanted = std::min(n - done, samplesPerBlock);
        const int got = read(m_raw.data(), wanted * std::min(bytesPerSample, 4)) / bytesPerSample;
        if (!convert(m_raw.data(), samples + done, got)) {
            return 0;
        }
        done += got;
        if (got < wanted) {
            break;
        }
    }
    return std::max(done, 0);
}

/// Converts n samples of the file's format; false, with words, if it isn't known.
bool FileInput::convert(const char *raw, float *samples, int n)
{
    const short format = m_settings.fmt();
    const bool isUnsigned = format == Settings::UnsignedLittle || format == Settings::UnsignedBig;
    const bool little = format == Settings::SignedLittle || format == Settings::UnsignedLittle;
    const int bits = format != 0 ? m_settings.bitsPerSample() : 0;
    int *ints = m_ints.data();
    switch (bits) {
    case 8:
        Util::convertRawTo8U(raw, ints, n);
        format == Settings::Unsigned8 ? Util::convert8UToFloat(ints, samples, n)
                                      : Util::convert8ToFloat(ints, samples, n);
        return true;
    case 16:
        Util::convertRawTo16U(raw, ints, n, little);
        isUnsigned ? Util::convert16UToFloat(ints, samples, n)
                   : Util::convert16ToFloat(ints, samples, n);
        return true;
    case 24:
        Util::convertRawTo24U(raw, ints, n, format != Settings::Signed24Swapped);
        Util::convert24ToFloat(ints, samples, n);
        return true;
    case 32:
        Util::convertRawTo32U(raw, ints, n, little);
        isUnsigned ? Util::convert32UToFloat(ints, samples, n)
                   : Util::convert32ToFloat(ints, samples, n);
        return true;
    default:
        std::fprintf(stderr, "FileInput::read() Error: %d bits data format is not supported\n",
            m_settings.bitsPerSample());
        return false;
    }
}

int FileInput::readChannel(float *samples, int numFrames, int channel)
{
    const int channelCount = channels();
    if (channel < 0 || channel >= channelCount) {
        return -1;
    }
    const int framesPerBlock = std::max(1, samplesPerBlock / channelCount);
    m_frames.resize(
        static_cast<std::size_t>(framesPerBlock) * static_cast<std::size_t>(channelCount));
    int done = 0;
    while (done < numFrames) {
        const int wanted = std::min(numFrames - done, framesPerBlock);
        const int got = read(m_frames.data(), wanted * channelCount) / channelCount;
        const float *source = m_frames.data() + channel;
        for (int i = 0; i < got; ++i) {
            samples[done + i] = source[static_cast<std::ptrdiff_t>(i) * channelCount];
        }
        done += got;
        if (got < wanted) {
            break;
        }
    }
    return done;
}

bool FileInput::seekData(std::int64_t offset)
{
    return seekStream(
        static_cast<std::int64_t>(m_fileInfo.dataOffset()) + sampleHeaderSize + offset);
}

int FileInput::seek(int offset)
{
    return seekData(offset) ? 0 : -1;
}

long FileInput::tell()
{
    const std::int64_t place = streamPosition();
    return place < 0
        ? -1
        : place - static_cast<std::int64_t>(m_fileInfo.dataOffset()) - sampleHeaderSize;
}

int FileInput::flush()
{
    return m_pFile != nullptr ? std::fflush(m_pFile) : -1;
}

int FileInput::rewind()
{
    return seekData(0) ? 0 : -1;
}

long FileInput::position() const
{
    return streamPosition();
}

int FileInput::gotoFrame(const int &frame, const int &channels)
{
    constexpr int mostChannels = 65535;
    if (frame < 0 || channels < 0 || channels > mostChannels) {
        return -1;
    }
    const std::int64_t bytesPerFrame
        = static_cast<std::int64_t>(channels) * settings().bytesPerSample();
    return seekData(frame * bytesPerFrame) ? 0 : -1;
}

int FileInput::gotoFrame(const int &frame)
{
    return gotoFrame(frame, channels());
}

int FileInput::readFrames(
    const int &frame, float *samples, const int &numFrames, const int &channels)
{
    return gotoFrame(frame, channels) == 0 ? readFrames(samples, numFrames, channels) : 0;
}

int FileInput::readFrames(float *samples, const int &numFrames, const int &channels)
{
    return channels > 0 ? read(samples, numFrames * channels) / channels : 0;
}

MTools::Handle<EBUInfo> FileInput::ebuInfo() const
{
    return m_ebuInfo;
}

MTools::Handle<EBUEnvelope> FileInput::ebuEnvelope() const
{
    return m_ebuEnvelope;
}

const FileInfo &FileInput::fileInfo() const
{
    return m_fileInfo;
}

QString FileInput::extentions() const
{
    return {};
}

MTools::Handle<PeakVector> FileInput::peakVector() const
{
    return m_peakVector;
}

std::FILE *FileInput::filePointer()
{
    return m_pFile;
}

int FileInput::close()
{
    if (m_pFile == nullptr) {
        return 0;
    }
    const int result = std::fclose(m_pFile);
    m_pFile = nullptr;
    return result;
}

bool FileInput::saveEbuInfo(const char *path)
{
    return !m_ebuInfo.isNull() && m_ebuInfo->save(path);
}

bool FileInput::loadEbuInfo(const char *path)
{
    const MTools::Handle<EBUInfo> info(std::make_unique<EBUInfo>().release());
    if (!info->load(path)) {
        return false;
    }
    m_ebuInfo = info;
    return true;
}

void FileInput::dump() const
{
    AudioIO::dump();
    qDebug().nospace() << "Name = " << name();
    settings().dump();
    fileInfo().dump();
}

}
