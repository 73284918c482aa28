#include "AppCatalog.h"

#include "Literals.h"

#include <QCoreApplication>

#include <algorithm>

namespace QMWidgets {

namespace {

AppCatalogItem item(const QString &strName, const char *pszText, int nId)
{
    return {u"calderin"_qs + strName, pszText, u":/catalogue/%1.png"_qs.arg(strName),
        u"id%1"_qs.arg(nId)};
}

} // namespace

const QVector<AppCatalogItem> &appCatalog()
{
    static const QVector<AppCatalogItem> catalog {
        item(u"wav"_qs,
            QT_TRANSLATE_NOOP("QMWidgets::AppCatalog",
                "Calderin WAV - turns audio and video files into WAV files"),
            900000101),
        item(u"m4a"_qs,
            QT_TRANSLATE_NOOP("QMWidgets::AppCatalog",
                "Calderin M4A - turns audio and video files into M4A files"),
            900000102),
        item(u"mp3"_qs,
            QT_TRANSLATE_NOOP("QMWidgets::AppCatalog",
                "Calderin MP3 - turns audio and video files into MP3 files"),
            900000103),
        item(u"recorder"_qs,
            QT_TRANSLATE_NOOP(
                "QMWidgets::AppCatalog", "Calderin Recorder - records any input of the computer"),
            900000104),
        item(u"timecode"_qs,
            QT_TRANSLATE_NOOP("QMWidgets::AppCatalog",
                "Calderin Timecode - reads LTC timecode from audio and video"),
            900000105),
        item(u"midi"_qs,
            QT_TRANSLATE_NOOP(
                "QMWidgets::AppCatalog", "Calderin MIDI - shows, plays and edits MIDI files"),
            900000106),
        item(u"metronome"_qs,
            QT_TRANSLATE_NOOP("QMWidgets::AppCatalog",
                "Calderin Metronome - keeps the beat in any time signature"),
            900000107),
        item(u"guitar"_qs,
            QT_TRANSLATE_NOOP("QMWidgets::AppCatalog",
                "Calderin Guitar - tuner, chords and scales for the guitar"),
            900000108),
        item(u"bass"_qs,
            QT_TRANSLATE_NOOP(
                "QMWidgets::AppCatalog", "Calderin Bass - tuner and scales for the bass guitar"),
            900000109),
        item(u"ukulele"_qs,
            QT_TRANSLATE_NOOP(
                "QMWidgets::AppCatalog", "Calderin Ukulele - tuner and chords for the ukulele"),
            900000110),
        item(u"mandolin"_qs,
            QT_TRANSLATE_NOOP(
                "QMWidgets::AppCatalog", "Calderin Mandolin - tuner and chords for the mandolin"),
            900000111),
        item(u"banjo"_qs,
            QT_TRANSLATE_NOOP(
                "QMWidgets::AppCatalog", "Calderin Banjo - tuner and chords for the banjo"),
            900000112),
        item(u"balalaika"_qs,
            QT_TRANSLATE_NOOP(
                "QMWidgets::AppCatalog", "Calderin Balalaika - tuner and chords for the balalaika"),
            900000113),
        item(u"piano"_qs,
            QT_TRANSLATE_NOOP(
                "QMWidgets::AppCatalog", "Calderin Piano - chords and scales on the keyboard"),
            900000114),
        item(u"violin"_qs,
            QT_TRANSLATE_NOOP(
                "QMWidgets::AppCatalog", "Calderin Violin - tuner and fingering for the violin"),
            900000115),
        item(u"viewer"_qs,
            QT_TRANSLATE_NOOP(
                "QMWidgets::AppCatalog", "Calderin Viewer - leafs through folders of pictures"),
            900000116),
        item(u"notes"_qs,
            QT_TRANSLATE_NOOP(
                "QMWidgets::AppCatalog", "Calderin Notes - puts notes and arrows on pictures"),
            900000117),
        item(u"cropper"_qs,
            QT_TRANSLATE_NOOP(
                "QMWidgets::AppCatalog", "Calderin Cropper - cuts pictures out of the screen"),
            900000118),
        item(u"measurer"_qs,
            QT_TRANSLATE_NOOP("QMWidgets::AppCatalog",
                "Calderin Measurer - measures sizes and distances on the screen"),
            900000119),
        item(u"palette"_qs,
            QT_TRANSLATE_NOOP("QMWidgets::AppCatalog",
                "Calderin Palette - reduces and tunes the colours of pictures"),
            900000120),
        item(u"animation"_qs,
            QT_TRANSLATE_NOOP(
                "QMWidgets::AppCatalog", "Calderin Animation - makes animations of pictures"),
            900000121),
        item(u"ftp"_qs,
            QT_TRANSLATE_NOOP(
                "QMWidgets::AppCatalog", "Calderin FTP - moves files to servers and back"),
            900000122),
        item(u"contacts"_qs,
            QT_TRANSLATE_NOOP(
                "QMWidgets::AppCatalog", "Calderin Contacts - reads and writes contact cards"),
            900000123),
        item(u"cipher"_qs,
            QT_TRANSLATE_NOOP(
                "QMWidgets::AppCatalog", "Calderin Cipher - locks files with a password"),
            900000124),
        item(u"style"_qs,
            QT_TRANSLATE_NOOP(
                "QMWidgets::AppCatalog", "Calderin Style - writes style sheets and tries them out"),
            900000125),
        item(u"minimizer"_qs,
            QT_TRANSLATE_NOOP(
                "QMWidgets::AppCatalog", "Calderin Minimizer - makes scripts for the web smaller"),
            900000126),
    };
    return catalog;
}

const AppCatalogItem *findInAppCatalog(const QString &strKey)
{
    const auto &catalog = appCatalog();
    const auto it = std::find_if(catalog.cbegin(), catalog.cend(),
        [&strKey](const AppCatalogItem &item) { return item.strKey == strKey; });
    return it != catalog.cend() ? &*it : nullptr;
}

QString catalogText(const AppCatalogItem &item)
{
    return QCoreApplication::translate("QMWidgets::AppCatalog", item.pszText);
}

} // namespace QMWidgets
