#pragma once

#include "AVAsset.h"
#include "AVMetadataIdentifiers.h"

#include <functional>
#include <memory>
#include <QLatin1String>
#include <QList>
#include <QString>
#include <QUrl>

inline constexpr QLatin1String AVAssetExportPresetPassthrough
    = latin1("AVAssetExportPresetPassthrough");
inline constexpr QLatin1String AVFileTypeAppleM4A = latin1("com.apple.m4a-audio");

/// The state of an export.
enum AVAssetExportSessionStatus
{
    AVAssetExportSessionStatusUnknown = 0,
    AVAssetExportSessionStatusWaiting = 1,
    AVAssetExportSessionStatusExporting = 2,
    AVAssetExportSessionStatusCompleted = 3,
    AVAssetExportSessionStatusFailed = 4
};

/// Copies an M4A file with other metadata.
///
/// The media data, edit lists and sample tables come out bit for bit, but for the chunks' offsets;
/// the index lies in front of the sound; the metadata is the given list and nothing else, except
/// for the gapless item (iTunSMPB), which belongs to the sound and stays.
///
/// The output appears under its name when the export starts, empty, and exclusively: a path that
/// exists fails the export and is left as it is. Whatever fails, no output stays, and the asset's
/// file is only read. A fragmented file, a protected one and one that isn't an MPEG-4 audio file
/// fail.
///
/// A handle: copies are the same export. Safe to be asked for its status from any thread.
class AVAssetExportSession
{
public:
    /// Only the pass-through preset is known: another one fails the export.
    AVAssetExportSession(const AVAsset &asset, const QString &presetName);

    void setOutputURL(const QUrl &url);
    /// Only AVFileTypeAppleM4A is known: another one fails the export.
    void setOutputFileType(const QString &fileType);
    /// The complete list of iTunes items that the output gets.
    void setMetadata(const QList<AVMetadataItem> &metadata);

    /// Takes the output's name now: makes the empty file exclusively. False if it can't be made,
    /// for instance because it exists; then another output may be set. Without this call the export
    /// does it when it is started.
    [[nodiscard]] bool reserveOutput();

    /// Starts the export and returns at once. The handler is called when it is over, on a thread of
    /// the export's own. An export that runs or waits when the process ends in the ordinary way is
    /// finished first, its handler included.
    void exportAsynchronouslyWithCompletionHandler(const std::function<void()> &handler);

    AVAssetExportSessionStatus status() const;
    /// Why it failed, in plain words; empty if it didn't.
    QString error() const;

private:
    struct State;
    std::shared_ptr<State> m_state;
};
