#pragma once

#include <QtGlobal>

/// The conversion settings as the store holds them: each key with its default, and the rates that
/// the dialog offers. Everything else asks the static accessors of AppSettingsDialog.
namespace AppSettings {

/// A key of the settings store with the value that stands for a missing one.
template <typename T> struct Key
{
    const char *name;
    T standard;
};

inline constexpr Key<int> SampleRate {"KeySampleRate", 44100}; ///< Hz
inline constexpr Key<int> BitRate {"KeyBitRate", 128000}; ///< bit/s
inline constexpr Key<int> Quality {"KeyQuality", 127}; ///< 0 to 127
inline constexpr Key<int> Channels {"KeyChanels", 2};
inline constexpr Key<int> BitsPerSample {"KeyBitsPersample", 16};
inline constexpr Key<int> Normalization {"KeyNormalization", 100}; ///< percent of full scale
inline constexpr Key<bool> NormalizationActive {"KeyNormalizationActive", true};
inline constexpr Key<int> FadeIn {"KeyFadeIn", 3}; ///< seconds; stored with a fraction
inline constexpr Key<int> FadeOut {"KeyFadeOut", 3}; ///< seconds; stored with a fraction
inline constexpr Key<bool> FadeInOutActive {"KeyFadeInOutActive", false};
inline constexpr Key<bool> TrimSilenceActive {"KeyTrimSilenceActive", false};
inline constexpr Key<bool> FolderStructureActive {"KeyFolderStructureActive", true};
inline constexpr Key<bool> CopyImagesActive {"KeyCopyImagesActive", false};
inline constexpr Key<bool> CopyTextsActive {"KeyCopyTextssActive", false};
inline constexpr Key<bool> CopyEntireContentActive {"KeyCopyEntireContentActive", false};
inline constexpr Key<bool> CopyMetaTagsActive {"KeyCopyMetaTagsActive", true};
inline constexpr Key<bool> PlaySoundAfter {"KeyPlaySoundAfter", true};
inline constexpr Key<bool> OpenFolderAfter {"KeyOpenFolderAfter", true};
inline constexpr Key<bool> ClearListAfter {"KeyClearListAfter", false};
inline constexpr const char *Codec = "KeyCodec"; ///< written only

/// A rate with the text under which the dialog offers it.
struct Rate
{
    int value;
    const char *text;
};

/// In Hz, highest first. The texts aren't translated.
inline constexpr Rate SampleRates[] = {
    {96000, "96000 Hz (Studio Quality)"},
    {88200, "88200 Hz (Professional Quality)"},
    {48000, "48000 Hz (DVD Quality)"},
    {44100, "44100 Hz (CD Quality)"},
    {32000, "32000 Hz (Tape Quality)"},
    {24000, "24000 Hz (Low PCM Quality)"},
    {22050, "22050 Hz (Radio Quality)"},
    {16000, "16000 Hz (VoIP Quality)"},
    {11025, "11025 Hz (Voice Quality)"},
};

/// In bit/s, highest first. The texts are keys of translations in the context of the dialog.
inline constexpr Rate BitRates[] = {
    {320000, QT_TRANSLATE_NOOP("AppSettingsDialog", "320 kbps")},
    {256000, QT_TRANSLATE_NOOP("AppSettingsDialog", "256 kbps")},
    {224000, QT_TRANSLATE_NOOP("AppSettingsDialog", "224 kbps")},
    {192000, QT_TRANSLATE_NOOP("AppSettingsDialog", "192 kbps")},
    {160000, QT_TRANSLATE_NOOP("AppSettingsDialog", "160 kbps")},
    {128000, QT_TRANSLATE_NOOP("AppSettingsDialog", "128 kbps")},
    {112000, QT_TRANSLATE_NOOP("AppSettingsDialog", "112 kbps")},
    {96000, QT_TRANSLATE_NOOP("AppSettingsDialog", "96 kbps")},
    {80000, QT_TRANSLATE_NOOP("AppSettingsDialog", "80 kbps")},
    {64000, QT_TRANSLATE_NOOP("AppSettingsDialog", "64 kbps")},
    {56000, QT_TRANSLATE_NOOP("AppSettingsDialog", "56 kbps")},
    {48000, QT_TRANSLATE_NOOP("AppSettingsDialog", "48 kbps")},
    {40000, QT_TRANSLATE_NOOP("AppSettingsDialog", "40 kbps")},
    {32000, QT_TRANSLATE_NOOP("AppSettingsDialog", "32 kbps")},
    {24000, QT_TRANSLATE_NOOP("AppSettingsDialog", "24 kbps")},
    {16000, QT_TRANSLATE_NOOP("AppSettingsDialog", "16 kbps")},
};

}
