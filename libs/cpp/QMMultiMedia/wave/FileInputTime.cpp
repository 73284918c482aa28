// Time and timecode of a file input.

#include "FileInput.h"

#include "SampleTime.h"

namespace QMMultiMedia {

void FileInput::createLTCData(const int &track)
{
    m_ltcData = MTools::Handle<LTCData>(std::make_unique<LTCData>(LTCData {track}).release());
}

QString FileInput::getLTC(const int & /*frame*/) const
{
    return {};
}

long long FileInput::getAudioFrameLTC(
    int /*hours*/, int /*minutes*/, int /*seconds*/, int /*frames*/) const
{
    return -1;
}

long long FileInput::getAudioFrameLTC(const QString & /*timecode*/) const
{
    return -1;
}

bool FileInput::isLTCDataAvailable()
{
    return false;
}

int FileInput::getLTCTrack()
{
    return m_ltcData.isNull() ? -1 : m_ltcData->track;
}

QString FileInput::ltcTimeCode(const int & /*frame*/, bool /*absolute*/)
{
    return {};
}

float FileInput::ltcFps()
{
    return 0.0f;
}

float FileInput::fps() const
{
    const MTools::Handle<EBUInfo> info = ebuInfo();
    return info.isNull() ? 0.0f : info->fps();
}

std::int64_t FileInput::numFrames() const
{
    const short channelCount = channels();
    return channelCount > 0 ? static_cast<std::int64_t>(fileInfo().numSamples()) / channelCount : 0;
}

QString FileInput::duration() const
{
    return timecode(numFrames());
}

QString FileInput::start() const
{
    return absoluteTimecode(0);
}

QString FileInput::end() const
{
    return absoluteTimecode(numFrames());
}

QString FileInput::timecode(const long long &sample) const
{
    return timecodeOfSamples(fps(), static_cast<double>(sample), sampleRate());
}

QString FileInput::absoluteTimecode(const long long &sample) const
{
    const MTools::Handle<EBUInfo> info = ebuInfo();
    const double reference = info.isNull() ? 0.0 : static_cast<double>(info->timeReference());
    return timecodeOfSamples(fps(), reference + static_cast<double>(sample), sampleRate());
}

QString FileInput::scene() const
{
    const MTools::Handle<EBUInfo> info = ebuInfo();
    return info.isNull() ? QString() : info->scene();
}

QString FileInput::take() const
{
    const MTools::Handle<EBUInfo> info = ebuInfo();
    return info.isNull() ? QString() : info->take();
}

float FileInput::calculateZoom(int width) const
{
    return width > 0 ? static_cast<float>(numFrames()) / static_cast<float>(width) : 0.0f;
}

}
