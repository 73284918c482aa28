#include "ConversionFormat.h"

#include "AppSettingsDialog.h"
#include "Literals.h"

QMMultiMedia::MAudioFormat conversionFormat()
{
    QMMultiMedia::MAudioFormat format;
    format.codec = u"WAV"_qs;
    format.sampleRate = AppSettingsDialog::sampleRate();
    format.bitsPerSample = AppSettingsDialog::bitsPerSample();
    format.channels = AppSettingsDialog::channels();
    format.bitRate = AppSettingsDialog::bitRate();
    format.quality = QMMultiMedia::MAudioFormat::qualityClass(AppSettingsDialog::quality());
    // The decoder knows one and two channels and the three widths; anything else would give a file
    // whose header doesn't fit its samples.
    if (format.channels != 1 && format.channels != 2) {
        format.channels = 2;
    }
    if (format.bitsPerSample != 16 && format.bitsPerSample != 24 && format.bitsPerSample != 32) {
        format.bitsPerSample = 16;
    }
    if (format.sampleRate < 8000 || format.sampleRate > 192000) {
        format.sampleRate = 44100;
    }
    return format;
}
