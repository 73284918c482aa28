// calderin-bench-stages SCRATCH FILE...: one line a stage and file, with tabs: the stage, the
// file's name, seconds of sound, seconds of wall time. The stages are the engine's own, one after
// the other.
#include "AFTransCoder.h"
#include "App.h"
#include "ChunkEffects.h"
#include "Literals.h"
#include "NativeAudioDecoder.h"
#include "NativeMetaTags.h"
#include "PendingExports.h"
#include "SignalScan.h"
#include "WaveOutput.h"

#include <cstdio>
#include <functional>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <vector>

namespace {

constexpr int chunkValues = 32000;
constexpr int sampleRate = 44100;
constexpr double valuesPerSecond = sampleRate * 2.0;
// Longer sounds are cut: the values are kept in memory between the stages.
constexpr std::size_t mostValues = std::size_t {600} * sampleRate * 2;

void report(
    const char *stage, const QString &file, std::size_t values, const std::function<void()> &run)
{
    QElapsedTimer timer;
    timer.start();
    run();
    std::printf("%s\t%s\t%.3f\t%.6f\n", stage, qPrintable(QFileInfo(file).fileName()),
        static_cast<double>(values) / valuesPerSecond,
        static_cast<double>(timer.nsecsElapsed()) / 1e9);
}

std::vector<float> decode(const QString &file)
{
    std::vector<float> values;
    QMMultiMedia::NativeAudioDecoder decoder;
    if (!decoder.setFile(file, sampleRate, 16, 2)) {
        return values;
    }
    std::vector<float> chunk(chunkValues);
    int got = 0;
    while (values.size() < mostValues && (got = decoder.read(chunk.data(), chunkValues)) > 0) {
        values.insert(values.end(), chunk.begin(), chunk.begin() + got);
    }
    decoder.finish();
    return values;
}

template <typename Work> void inChunks(std::vector<float> &values, Work work)
{
    for (std::size_t i = 0; i < values.size(); i += chunkValues) {
        work(values.data() + i,
            static_cast<int>(std::min<std::size_t>(chunkValues, values.size() - i)));
    }
}

void measure(const QString &file, const QDir &scratch)
{
    std::vector<float> values;
    QElapsedTimer timer;
    timer.start();
    values = decode(file);
    std::printf("decode\t%s\t%.3f\t%.6f\n", qPrintable(QFileInfo(file).fileName()),
        static_cast<double>(values.size()) / valuesPerSecond,
        static_cast<double>(timer.nsecsElapsed()) / 1e9);

    ChunkEffects::Plan plan;
    plan.numSamples = static_cast<qint64>(values.size());
    plan.normalise = true;
    plan.gain = 0.9f;
    SignalScan scan;
    report("scan", file, values.size(),
        [&] { inChunks(values, [&scan](float *part, int count) { scan.add(part, count); }); });
    report("gain", file, values.size(), [&] {
        ChunkEffects effects(plan);
        inChunks(values, [&effects](float *part, int count) { effects.process(part, count); });
    });
    const QString wave = scratch.filePath(u"stage.wav"_qs);
    const QString result = scratch.filePath(u"stage.m4a"_qs);
    QFile::remove(wave);
    QFile::remove(result);
    report("write WAV", file, values.size(), [&] {
        QMMultiMedia::WaveOutput output(QFile::encodeName(wave).constData(),
            QMMultiMedia::Settings(sampleRate, 2, 1, 16), QString(), {}, true);
        inChunks(values, [&output](float *part, int count) { output.write(part, count); });
        output.close();
    });
    report(
        "encode", file, values.size(), [&] { QMMultiMedia::AFTransCoder().convert(wave, result); });
    report("tags", file, values.size(), [&] {
        QMMultiMedia::NativeMetaTags tags(nullptr);
        tags.readFrom(file);
        tags.writeTo(result);
        PendingExports::waitForAll();
    });
    QFile::remove(wave);
    QFile::remove(result);
}

}

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QMWidgets::App app(argc, argv, u"Velmora"_qs, u"Calderin M4A"_qs);
    // The log isn't part of the stages.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    for (const QString &file : arguments.mid(1)) {
        measure(file, QDir(arguments.first()));
    }
    return 0;
}
