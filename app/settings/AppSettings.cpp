#include "AppSettings.h"

#include "App.h"
#include "AppSettingsDialog.h"
#include "Literals.h"
#include "MAudioFormat.h"

namespace AppSettings {

namespace {

template <typename T> T value(const Key<T> &key)
{
    return QMWidgets::App::settingsValue(QLatin1String(key.name), QVariant(key.standard))
        .template value<T>();
}

// Towards zero, as an int; what no int holds (a store edited by hand) counts as none.
int wholeSeconds(const Key<int> &key)
{
    const float seconds
        = QMWidgets::App::settingsValue(QLatin1String(key.name), QVariant(key.standard)).toFloat();
    return seconds > -1e9F && seconds < 1e9F ? static_cast<int>(seconds) : 0;
}

}

}

int AppSettingsDialog::sampleRate()
{
    return AppSettings::value(AppSettings::SampleRate);
}

int AppSettingsDialog::bitRate()
{
    return AppSettings::value(AppSettings::BitRate);
}

int AppSettingsDialog::quality()
{
    return AppSettings::value(AppSettings::Quality);
}

int AppSettingsDialog::channels()
{
    return AppSettings::value(AppSettings::Channels);
}

int AppSettingsDialog::bitsPerSample()
{
    return AppSettings::value(AppSettings::BitsPerSample);
}

int AppSettingsDialog::normalization()
{
    return AppSettings::value(AppSettings::Normalization);
}

bool AppSettingsDialog::normalizationActive()
{
    return AppSettings::value(AppSettings::NormalizationActive);
}

int AppSettingsDialog::fadeIn()
{
    return AppSettings::wholeSeconds(AppSettings::FadeIn);
}

int AppSettingsDialog::fadeOut()
{
    return AppSettings::wholeSeconds(AppSettings::FadeOut);
}

bool AppSettingsDialog::fadeInOutActive()
{
    return AppSettings::value(AppSettings::FadeInOutActive);
}

bool AppSettingsDialog::trimSilenceActive()
{
    return AppSettings::value(AppSettings::TrimSilenceActive);
}

bool AppSettingsDialog::folderStructureActive()
{
    return AppSettings::value(AppSettings::FolderStructureActive);
}

bool AppSettingsDialog::copyImagesActive()
{
    return AppSettings::value(AppSettings::CopyImagesActive);
}

bool AppSettingsDialog::copyTextsActive()
{
    return AppSettings::value(AppSettings::CopyTextsActive);
}

bool AppSettingsDialog::copyEntireContentActive()
{
    return AppSettings::value(AppSettings::CopyEntireContentActive);
}

bool AppSettingsDialog::copyMetaTagsActive()
{
    return AppSettings::value(AppSettings::CopyMetaTagsActive);
}

bool AppSettingsDialog::playSoundAfter()
{
    return AppSettings::value(AppSettings::PlaySoundAfter);
}

bool AppSettingsDialog::openFolderAfter()
{
    return AppSettings::value(AppSettings::OpenFolderAfter);
}

bool AppSettingsDialog::clearListAfter()
{
    return AppSettings::value(AppSettings::ClearListAfter);
}

QString AppSettingsDialog::codec()
{
    return codecName(0);
}

QString AppSettingsDialog::codecName(int index)
{
    return QMMultiMedia::MAudioFormat::codecName(index);
}
