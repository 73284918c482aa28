#include "MediaCommon.h"

#include "Literals.h"
#include "PlatformVersion.h"
#include <algorithm>
#include <QHash>

namespace QMMultiMedia {

namespace {

using SuffixTable = QHash<QString, MediaCommon::MediaType>;

void addSuffixes(SuffixTable *table, const QString &suffixes, MediaCommon::MediaType type)
{
    for (const QString &suffix : suffixes.split(u' ')) {
        table->insert(suffix, type);
    }
}

SuffixTable makeTable()
{
    SuffixTable table;
    addSuffixes(
        &table, u"avi mp4 mov wmv 3gp 3g2 m4v mpg flv swf mkv asf vob ts"_qs, MediaCommon::Video);
    addSuffixes(&table,
        u"wav mp3 mp2 mp1 m4a m4b m4r wma ac3 aac ogg 3ga aiff aif au caf bwf amr awb flac"_qs,
        MediaCommon::Audio);
    addSuffixes(&table, u"jpg png bmp tif tiff jpeg ppm xpm gif"_qs, MediaCommon::Image);
    addSuffixes(&table, u"doc txt rtf html htm xml docx"_qs, MediaCommon::Document);
    return table;
}

}

int MediaCommon::mediaType(const QString &path)
{
    static const SuffixTable table = makeTable();
    const QString suffix = path.mid(path.lastIndexOf(u'.') + 1).toLower();
    if (suffix.size() == path.size()) {
        return Other;
    }
    // The platform decodes FLAC from version 15 on.
    if (platformVersion() <= 14 && suffix == u"flac"_qs) {
        return Other;
    }
    return table.value(suffix, Other);
}

bool MediaCommon::isAudio(const QString &path)
{
    return mediaType(path) == Audio;
}

bool MediaCommon::isVideo(const QString &path)
{
    return mediaType(path) == Video;
}

bool MediaCommon::isImage(const QString &path)
{
    return mediaType(path) == Image;
}

bool MediaCommon::isDocument(const QString &path)
{
    return mediaType(path) == Document;
}

bool MediaCommon::isPlayable(const QString & /*path*/)
{
    return true;
}

QString MediaCommon::msecsToString(const long long &msecs)
{
    const long long seconds = std::max(msecs, 0LL) / 1000;
    return QString::asprintf(
        "%02lld:%02lld:%02lld", seconds / 3600, seconds / 60 % 60, seconds % 60);
}

}
