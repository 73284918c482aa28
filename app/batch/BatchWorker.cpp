#include "BatchWorker.h"

#include "App.h"
#include "AppSettingsDialog.h"
#include "ChunkEffects.h"
#include "ExtAudioFile.h"
#include "FreeName.h"
#include "GeneralOutput.h"
#include "Literals.h"
#include "NativeAudioDecoder.h"
#include "RunFolder.h"
#include "SignalScan.h"
#include "ToolsCommon.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <new>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>
#include <QThread>

namespace {

/// Values of one pass over a file; the fades depend on this grain.
constexpr int chunkSize = 32000;
constexpr unsigned long pollMs = 500;
/// The sample data of a WAV file ends here, in bits.
constexpr qint64 maxBits = 0x7FFFFFFF8;

using Chunk = std::array<float, chunkSize>;

QString intermediateExtension()
{
    const QString name = QCoreApplication::applicationName().toLower();
    if (name.contains(u"mp3"_qs)) {
        return u".mp3"_qs;
    }
    return name.contains(u"flac"_qs) ? u".flac"_qs : u".wav"_qs;
}

}

/// Files that are copied along, with the text that the dialog shows meanwhile.
struct BatchWorker::CopyStage
{
    QVector<QString> files;
    QString title;
};

BatchWorker::BatchWorker(QObject *parent)
    : QObject(parent)
    , m_settings {u"WAV"_qs, 44100, 2, 16, 128000, 3}
    , m_pDecoder(new QMMultiMedia::NativeAudioDecoder(this))
{
}

BatchWorker::~BatchWorker() = default;

void BatchWorker::stop()
{
    m_stop = true;
    ExtAudioFileDropHints();
}

void BatchWorker::pause(bool on)
{
    m_pause = on;
}

void BatchWorker::setDroppedUrls(const QList<QUrl> &urls)
{
    m_droppedUrls = urls;
    m_dropped.clear();
}

void BatchWorker::slotAppendError(const QString &line)
{
    m_errors += line;
}

void BatchWorker::slotDoWork()
{
    // The flags aren't cleared here: a stop or a pause that came before the start holds.
    m_errors = QString();
    m_done = 0;
    m_receipts.clear();
    const QString destination
        = QMWidgets::App::settingsValue(u"DestinationPath"_qs, QMWidgets::App::musicDirectory(true))
              .toString();
    const int total = numSteps();
    const RunFolder folder(destination);
    const QString runFolder = folder.path();

    convertInputFiles(runFolder, total);
    copySideFiles(runFolder, total);

    if (!m_errors.isEmpty()) {
        emit errorsLog(m_errors);
    }
    emit totalProgress(100);
    ExtAudioFileForgetKept();
    m_stop = false;
    m_pause = false;
    emit finished(runFolder);
}

void BatchWorker::refuseAll()
{
    for (const QString &file : qAsConst(m_inputFiles)) {
        refuse(file);
    }
    emit errorsLog(m_errors);
    emit totalProgress(100);
    emit finished(QString());
}

void BatchWorker::refuse(const QString &input)
{
    m_errors += tr("Can not convert: ") + input + u"\n"_qs;
}

void BatchWorker::convertInputFiles(const QString &runFolder, int total)
{
    const QString extension = intermediateExtension();
    for (int i = 0; i < m_inputFiles.size(); ++i) {
        const QString &file = m_inputFiles.at(i);
        m_nextInput = i + 1 < m_inputFiles.size() ? m_inputFiles.at(i + 1) : QString();
        const QString output
            = freeName(folderFor(file, runFolder), QFileInfo(file).completeBaseName(), extension);
        m_receipt = RunReceipt();
        m_receipt.source = file;
        try {
            convert(file, output);
        } catch (const std::bad_alloc &) {
            QFile::remove(output);
            refuse(file);
        }
        m_receipts.append(m_receipt);
        if (m_stop) {
            QFile::remove(output);
            return;
        }
        ++m_done;
        emitTotalProgress(total);
    }
}

QVector<BatchWorker::CopyStage> BatchWorker::copyStages() const
{
    QVector<CopyStage> stages;
    if (AppSettingsDialog::copyImagesActive() && !m_imageFiles.isEmpty()) {
        stages.append({m_imageFiles, tr("COPYING IMAGE FILES")});
    }
    if (AppSettingsDialog::copyTextsActive() && !m_textFiles.isEmpty()) {
        stages.append({m_textFiles, tr("COPYING TEXT FILES")});
    }
    if (AppSettingsDialog::copyEntireContentActive() && !m_unsuportedFiles.isEmpty()) {
        stages.append({m_unsuportedFiles, tr("COPYING NON-CONVERTED CONTENT")});
    }
    return stages;
}

int BatchWorker::numSteps() const
{
    return m_inputFiles.size() + copyStages().size();
}

void BatchWorker::copySideFiles(const QString &runFolder, int total)
{
    for (const CopyStage &stage : copyStages()) {
        if (m_stop) {
            return;
        }
        emit fileProgress(0);
        emit currentFile(stage.title);
        copyFiles(stage.files, runFolder);
        ++m_done;
        emitTotalProgress(total);
    }
}

void BatchWorker::emitTotalProgress(int total)
{
    emit totalProgress(
        static_cast<int>(static_cast<float>(m_done) * 100.0f / static_cast<float>(total)));
}

QString BatchWorker::folderFor(const QString &file, const QString &runFolder)
{
    if (!AppSettingsDialog::folderStructureActive()) {
        return runFolder;
    }
    // Never a path relative to the process: without a URL that applies it is the run's folder.
    const QString mapped = newPathForForlderStructure(file, runFolder);
    QString folder = mapped.isEmpty() ? runFolder : mapped;
    QMWidgets::App::ensureDirExists(folder);
    return folder;
}

/// Looked at once a run: thousands may have been dropped, and each file asks for all of them.
const QVector<BatchWorker::DroppedUrl> &BatchWorker::dropped()
{
    using MTools::ToolsCommon;
    if (m_dropped.isEmpty()) {
        m_dropped.reserve(m_droppedUrls.size());
        for (const QUrl &url : qAsConst(m_droppedUrls)) {
            const QString path = ToolsCommon::normalizePath(url.toLocalFile());
            const QFileInfo info(path);
            const bool isFile = info.isFile();
            m_dropped.append(
                {path, isFile ? ToolsCommon::normalizePath(info.absolutePath()) : path, isFile});
        }
    }
    return m_dropped;
}

QString BatchWorker::newPathForForlderStructure(const QString &file, const QString &destination)
{
    QString folder = MTools::ToolsCommon::normalizePath(QFileInfo(file).absolutePath());
    const QVector<DroppedUrl> &urls = dropped();
    const auto last = std::find_if(urls.crbegin(), urls.crend(),
        [&folder](const DroppedUrl &url) { return url.isFile || folder.startsWith(url.path); });
    if (last == urls.crend()) {
        return {};
    }
    folder.remove(last->folder);
    const QString name = last->isFile ? QString() : last->path.section(u'/', -1) + u"/"_qs;
    return destination + name + folder + u"/"_qs;
}

void BatchWorker::copyFiles(const QVector<QString> &files, const QString &destination)
{
    int done = 0;
    for (const QString &file : files) {
        const QFileInfo info(file);
        const QString extension = info.suffix().isEmpty() ? QString() : u"."_qs + info.suffix();
        const QString target
            = freeName(folderFor(file, destination), info.completeBaseName(), extension);
        // A named pipe or a device would block the run or never end.
        if (info.isFile()) {
            QFile::copy(file, target);
        }
        if (m_stop) {
            return;
        }
        ++done;
        emit fileProgress(
            static_cast<int>(static_cast<float>(done) * 100.0f / static_cast<float>(files.size())));
    }
}

bool BatchWorker::openDecoder(const QString &input)
{
    return m_pDecoder->setFile(
        input, m_settings.sampleRate, m_settings.bitsPerSample, m_settings.channels);
}

void BatchWorker::initAudioFileInfo(const QString &input)
{
    m_numSamples = 0;
    m_maxPeak = 0.0f;
    m_firstAudible = 0;
    m_lastAudible = 0;
    openDecoder(input);
    SignalScan scan;
    Chunk chunk;
    while (const int count = m_pDecoder->read(chunk.data(), chunkSize)) {
        scan.add(chunk.data(), count);
    }
    m_pDecoder->finish();
    m_numSamples = m_pDecoder->endedEarly() ? 0 : scan.numSamples();
    m_maxPeak = scan.maxPeak();
    m_firstAudible = scan.firstAudible();
    m_lastAudible = scan.lastAudible();
}

void BatchWorker::convert(const QString &input, const QString &output)
{
    emit fileProgress(0);
    emit currentFile(tr("ANALYZING"));
    initAudioFileInfo(input);
    if (!hasConvertibleLength(input) || !waitForFreeSpace(output) || m_stop) {
        return;
    }
    emit currentFile(QFileInfo(input).completeBaseName());
    convertDecoded(input, output);
}

bool BatchWorker::hasConvertibleLength(const QString &input)
{
    if (sizeInBits() >= maxBits) {
        m_errors += tr("Can not convert, because the duration is to long. Please reduce the "
                       "conversion sample rate and try again: ")
            + input + u"\n"_qs;
        return false;
    }
    if (m_numSamples == 0) {
        refuse(input);
        return false;
    }
    return true;
}

bool BatchWorker::hasFreeSpace(const QString &output) const
{
    const QStorageInfo storage(QFileInfo(output).absolutePath());
    // A folder that isn't there has no storage; the output stage tells of it.
    return !storage.isValid() || sizeInBits() / 8 < storage.bytesAvailable();
}

bool BatchWorker::waitForFreeSpace(const QString &output)
{
    while (!hasFreeSpace(output)) {
        m_pause = true;
        emit notEnoughtFreeSpace();
        while (m_pause) {
            if (m_stop) {
                return false;
            }
            QThread::msleep(pollMs);
        }
    }
    return true;
}

void BatchWorker::convertDecoded(const QString &input, const QString &output)
{
    hintNextFile();
    GeneralOutput generalOutput(output, m_settings);
    generalOutput.setMetaInfoFile(input);
    connect(&generalOutput, &GeneralOutput::errorsLog, this, &BatchWorker::slotAppendError);

    const qint64 perSecond = static_cast<qint64>(m_settings.sampleRate) * m_settings.channels;
    ChunkEffects::Plan plan;
    plan.numSamples = m_numSamples;
    plan.channels = m_settings.channels;
    plan.normalise = AppSettingsDialog::normalizationActive();
    if (plan.normalise && m_maxPeak > 0.0f) {
        plan.gain = static_cast<float>(AppSettingsDialog::normalization()) / 100.0f / m_maxPeak;
    }
    plan.fade = AppSettingsDialog::fadeInOutActive();
    if (plan.fade) {
        plan.fadeInSamples = AppSettingsDialog::fadeIn() * perSecond;
        plan.fadeOutSamples = AppSettingsDialog::fadeOut() * perSecond;
    }
    plan.trim = AppSettingsDialog::trimSilenceActive();
    plan.firstAudible = m_firstAudible;
    plan.lastAudible = m_lastAudible;

    openDecoder(input);
    ChunkEffects effects(plan);
    const qint64 read = runSampleLoop(generalOutput, effects);
    const qint64 delivered = m_pDecoder->endedEarly() ? 0 : read;
    if (delivered == 0) {
        generalOutput.setMetaInfoFile(QString());
    }
    generalOutput.close();
    m_pDecoder->finish();
    if (delivered == 0) {
        // The source vanished after the analysis, or couldn't be read to its end: what there is
        // isn't its conversion.
        QFile::remove(generalOutput.outputFile());
        QFile::remove(output);
        refuse(input);
        return;
    }

    m_receipt.isCut = delivered < m_numSamples;
    m_receipt.lengthMs = perSecond > 0 ? m_numSamples * 1000 / perSecond : 0;
    m_receipt.gainDb = plan.gain > 0.0f ? 20.0 * std::log10(static_cast<double>(plan.gain)) : 0.0;
    m_receipt.tags = generalOutput.tagReceipt();
    if (QFileInfo::exists(generalOutput.outputFile())) {
        m_receipt.output = generalOutput.outputFile();
    }
}

/// Returns how many values the decoder delivered; all of them if the end was trimmed.
qint64 BatchWorker::runSampleLoop(GeneralOutput &output, ChunkEffects &effects)
{
    Chunk chunk;
    qint64 position = 0;
    int lastPercent = 0;
    for (;;) {
        while (m_pause && !m_stop) {
            QThread::msleep(pollMs);
        }
        const int count = m_pDecoder->read(chunk.data(), chunkSize);
        if (count <= 0) {
            return position;
        }
        position += count;
        const int percent = static_cast<int>(
            static_cast<float>(position) * 100.0f / static_cast<float>(m_numSamples));
        if (percent != lastPercent) {
            lastPercent = percent;
            emit fileProgress(percent);
        }
        const ChunkEffects::Result result = effects.process(chunk.data(), count);
        if (result.count > 0) {
            output.write(result.values, result.count);
        }
        if (result.last) {
            return m_numSamples;
        }
    }
}

void BatchWorker::hintNextFile()
{
    if (!m_readAhead || m_nextInput.isEmpty() || m_stop) {
        return;
    }
    ExtAudioFileHint(QUrl::fromLocalFile(m_nextInput),
        QMMultiMedia::NativeAudioDecoder::createClientFormat(
            m_settings.sampleRate, m_settings.bitsPerSample));
}
