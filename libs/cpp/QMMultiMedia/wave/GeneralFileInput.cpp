#include "GeneralFileInput.h"

#include "AiffInput.h"
#include "Literals.h"
#include "WaveInput.h"

namespace QMMultiMedia {

bool GeneralFileInput::load(const char *path, bool force)
{
    MTools::Handle<FileInput> candidate(std::make_unique<WaveInput>().release());
    if (!candidate->load(path, force)) {
        candidate = MTools::Handle<FileInput>(std::make_unique<AiffInput>().release());
        if (!candidate->load(path, force)) {
            return !m_reader.isNull();
        }
    }
    m_reader = candidate;
    return true;
}

bool GeneralFileInput::open(const char *path)
{
    return load(path, true);
}

QString GeneralFileInput::formatString() const
{
    switch (fileFormat()) {
    case Wave:
        return u"WAVE"_qs;
    case BroadcastWave:
        return u"BWF"_qs;
    case Aiff:
        return u"AIFF"_qs;
    default:
        return u"UNKNOWN"_qs;
    }
}

int GeneralFileInput::fileFormat() const
{
    if (dynamic_cast<const WaveInput *>(m_reader.get()) != nullptr) {
        return m_reader->ebuInfo().isNull() ? Wave : BroadcastWave;
    }
    return dynamic_cast<const AiffInput *>(m_reader.get()) != nullptr ? Aiff : None;
}

const Settings &GeneralFileInput::settings() const
{
    return m_reader.isNull() ? m_settings : m_reader->settings();
}

void GeneralFileInput::setSettings(const Settings &settings)
{
    m_reader.isNull() ? AudioIO::setSettings(settings) : m_reader->setSettings(settings);
}

void GeneralFileInput::dump() const
{
    m_reader.isNull() ? FileInput::dump() : m_reader->dump();
}

const char *GeneralFileInput::name() const
{
    return m_reader.isNull() ? FileInput::name() : m_reader->name();
}

const FileInfo &GeneralFileInput::fileInfo() const
{
    return m_reader.isNull() ? m_fileInfo : m_reader->fileInfo();
}

QString GeneralFileInput::extentions() const
{
    return m_reader.isNull() ? WaveInput().extentions() + u' ' + AiffInput().extentions()
                             : m_reader->extentions();
}

void GeneralFileInput::createPeakVector()
{
    if (!m_reader.isNull()) {
        m_reader->createPeakVector();
    }
}

const PeakInfo &GeneralFileInput::peakInfo(int index, int channel, float zoom)
{
    return m_reader.isNull() ? FileInput::peakInfo(index, channel, zoom)
                             : m_reader->peakInfo(index, channel, zoom);
}

void GeneralFileInput::createLTCData(const int &track)
{
    if (!m_reader.isNull()) {
        m_reader->createLTCData(track);
    }
}

// Everything else is the reader's own, or what a closed input gives.

short GeneralFileInput::fmt() const
{
    return forward(short(0), [](const FileInput &reader) { return reader.fmt(); });
}

bool GeneralFileInput::readChunk(Chunk *chunk, int swap)
{
    return forward(false, [&](FileInput &reader) { return reader.readChunk(chunk, swap); });
}

int GeneralFileInput::read(char *bytes, int n)
{
    return forward(0, [&](FileInput &reader) { return reader.read(bytes, n); });
}

int GeneralFileInput::read(const MTools::Handle<RawBuffer> &buffer)
{
    return forward(0, [&](FileInput &reader) { return reader.read(buffer); });
}

int GeneralFileInput::read(const MTools::Handle<AudioFloatBuffer> &buffer)
{
    return forward(0, [&](FileInput &reader) { return reader.read(buffer); });
}

int GeneralFileInput::read(const MTools::Handle<AudioFloatBuffer> &buffer, unsigned long frame)
{
    return forward(0, [&](FileInput &reader) { return reader.read(buffer, frame); });
}

int GeneralFileInput::read(float *samples, int n)
{
    return forward(0, [&](FileInput &reader) { return reader.read(samples, n); });
}

int GeneralFileInput::readChannel(float *samples, int numFrames, int channel)
{
    return forward(
        -1, [&](FileInput &reader) { return reader.readChannel(samples, numFrames, channel); });
}

int GeneralFileInput::seek(int offset)
{
    return forward(-1, [&](FileInput &reader) { return reader.seek(offset); });
}

long GeneralFileInput::tell()
{
    return forward(-1L, [](FileInput &reader) { return reader.tell(); });
}

int GeneralFileInput::flush()
{
    return forward(-1, [](FileInput &reader) { return reader.flush(); });
}

int GeneralFileInput::rewind()
{
    return forward(-1, [](FileInput &reader) { return reader.rewind(); });
}

long GeneralFileInput::position() const
{
    return forward(-1L, [](const FileInput &reader) { return reader.position(); });
}

int GeneralFileInput::gotoFrame(const int &frame, const int &channels)
{
    return forward(-1, [&](FileInput &reader) { return reader.gotoFrame(frame, channels); });
}

int GeneralFileInput::gotoFrame(const int &frame)
{
    return forward(-1, [&](FileInput &reader) { return reader.gotoFrame(frame); });
}

int GeneralFileInput::readFrames(
    const int &frame, float *samples, const int &numFrames, const int &channels)
{
    return forward(0,
        [&](FileInput &reader) { return reader.readFrames(frame, samples, numFrames, channels); });
}

int GeneralFileInput::readFrames(float *samples, const int &numFrames, const int &channels)
{
    return forward(
        0, [&](FileInput &reader) { return reader.readFrames(samples, numFrames, channels); });
}

bool GeneralFileInput::saveEnvelope(const char *path, const EBUEnvelope::Format &format)
{
    return forward(false, [&](FileInput &reader) { return reader.saveEnvelope(path, format); });
}

bool GeneralFileInput::loadEnvelope(const char *path)
{
    return forward(false, [&](FileInput &reader) { return reader.loadEnvelope(path); });
}

bool GeneralFileInput::saveEbuInfo(const char *path)
{
    return forward(false, [&](FileInput &reader) { return reader.saveEbuInfo(path); });
}

bool GeneralFileInput::loadEbuInfo(const char *path)
{
    return forward(false, [&](FileInput &reader) { return reader.loadEbuInfo(path); });
}

MTools::Handle<EBUInfo> GeneralFileInput::ebuInfo() const
{
    return forward(
        MTools::Handle<EBUInfo>(), [](const FileInput &reader) { return reader.ebuInfo(); });
}

MTools::Handle<EBUEnvelope> GeneralFileInput::ebuEnvelope() const
{
    return forward(MTools::Handle<EBUEnvelope>(),
        [](const FileInput &reader) { return reader.ebuEnvelope(); });
}

MTools::Handle<PeakVector> GeneralFileInput::peakVector() const
{
    return forward(
        FileInput::peakVector(), [](const FileInput &reader) { return reader.peakVector(); });
}

std::FILE *GeneralFileInput::filePointer()
{
    return forward(
        static_cast<std::FILE *>(nullptr), [](FileInput &reader) { return reader.filePointer(); });
}

int GeneralFileInput::close()
{
    return forward(0, [](FileInput &reader) { return reader.close(); });
}

QString GeneralFileInput::getLTC(const int &frame) const
{
    return forward(QString(), [&](const FileInput &reader) { return reader.getLTC(frame); });
}

long long GeneralFileInput::getAudioFrameLTC(int hours, int minutes, int seconds, int frames) const
{
    return forward(-1LL, [&](const FileInput &reader) {
        return reader.getAudioFrameLTC(hours, minutes, seconds, frames);
    });
}

long long GeneralFileInput::getAudioFrameLTC(const QString &timecode) const
{
    return forward(
        -1LL, [&](const FileInput &reader) { return reader.getAudioFrameLTC(timecode); });
}

bool GeneralFileInput::isLTCDataAvailable()
{
    return forward(false, [](FileInput &reader) { return reader.isLTCDataAvailable(); });
}

int GeneralFileInput::getLTCTrack()
{
    return forward(-1, [](FileInput &reader) { return reader.getLTCTrack(); });
}

QString GeneralFileInput::ltcTimeCode(const int &frame, bool absolute)
{
    return forward(
        QString(), [&](FileInput &reader) { return reader.ltcTimeCode(frame, absolute); });
}

float GeneralFileInput::ltcFps()
{
    return forward(0.0f, [](FileInput &reader) { return reader.ltcFps(); });
}

}
