// A raw ID3 tag, as the audio-file layer takes it.

#include "AudioFileTags.h"
#include "Literals.h"

#include <QVariantMap>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    UInt32 tagBytes = 0;
    UInt32 room = sizeof(tagBytes);
    const auto length = static_cast<UInt32>(size);
    if (AudioFormatGetProperty(kAudioFormatProperty_ID3TagSize, length, data, &room, &tagBytes)
        == noErr) {
        QVariantMap frames;
        room = sizeof(frames);
        const OSStatus status = AudioFormatGetProperty(
            kAudioFormatProperty_ID3TagToDictionary, length, data, &room, &frames);
        Q_UNUSED(status)
    }
    return 0;
}
