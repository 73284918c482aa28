// The loops that every sample passes, each by itself, on chunks as the job uses them.

#include "ChunkEffects.h"
#include "FileInput.h"
#include "SignalScan.h"
#include "Util.h"
#include "WaveInput.h"
#include "WaveOutput.h"

#include <benchmark/benchmark.h>
#include <cmath>
#include <QFile>
#include <QTemporaryDir>
#include <vector>

using namespace QMMultiMedia;

namespace {

constexpr int chunkValues = 32000;

std::vector<float> signal()
{
    std::vector<float> values(chunkValues);
    for (std::size_t i = 0; i < values.size(); ++i) {
        values[i] = 0.9f * std::sin(static_cast<float>(i) * 0.05f);
    }
    return values;
}

void countValues(benchmark::State &state)
{
    state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * chunkValues);
}

template <typename Source, typename Dest, int (*Convert)(const Source *, Dest *, int)>
void conversion(benchmark::State &state)
{
    const std::vector<Source> source(chunkValues, Source(1));
    std::vector<Dest> dest(chunkValues);
    for (auto _ : state) {
        Convert(source.data(), dest.data(), chunkValues);
        benchmark::DoNotOptimize(dest.data());
        benchmark::ClobberMemory();
    }
    countValues(state);
}

template <typename Source, typename Dest, int (*Convert)(const Source *, Dest *, int, bool),
    int Width, bool Packs>
void rawConversion(benchmark::State &state)
{
    const std::vector<Source> source(chunkValues * 4, Source(1));
    std::vector<Dest> dest(chunkValues * 4);
    for (auto _ : state) {
        Convert(source.data(), dest.data(), Packs ? chunkValues * Width : chunkValues, true);
        benchmark::DoNotOptimize(dest.data());
        benchmark::ClobberMemory();
    }
    countValues(state);
}

void pack24(benchmark::State &state)
{
    const std::vector<int> source(chunkValues, 1);
    std::vector<char> dest(chunkValues * 3);
    for (auto _ : state) {
        Util::convert24ToRaw(source.data(), dest.data(), chunkValues * 3);
        benchmark::DoNotOptimize(dest.data());
        benchmark::ClobberMemory();
    }
    countValues(state);
}

/// Peaks, conversion and packing without a disk.
void writer(benchmark::State &state)
{
    std::vector<float> values = signal();
    const Settings settings(
        44100, static_cast<short>(state.range(1)), 1, static_cast<short>(state.range(0)));
    WaveOutput output("/dev/null", settings, QString(), nullptr, true);
    for (auto _ : state) {
        output.write(values.data(), chunkValues);
    }
    countValues(state);
}

void reader(benchmark::State &state)
{
    const QTemporaryDir dir;
    const QByteArray path = QFile::encodeName(dir.filePath(QStringLiteral("a.wav")));
    std::vector<float> values = signal();
    const Settings settings(44100, 2, 1, static_cast<short>(state.range(0)));
    WaveOutput(path.constData(), settings, QString(), nullptr, true)
        .write(values.data(), chunkValues);
    WaveInput input;
    input.load(path.constData(), false);
    for (auto _ : state) {
        input.rewind();
        benchmark::DoNotOptimize(input.read(values.data(), chunkValues));
    }
    countValues(state);
}

void scan(benchmark::State &state)
{
    const std::vector<float> values = signal();
    SignalScan signalScan;
    for (auto _ : state) {
        signalScan.add(values.data(), chunkValues);
    }
    benchmark::DoNotOptimize(signalScan.maxPeak());
    countValues(state);
}

void effects(benchmark::State &state)
{
    std::vector<float> values = signal();
    ChunkEffects::Plan plan;
    plan.numSamples = 1LL << 40;
    plan.normalise = state.range(0) != 0;
    plan.gain = 1.0f;
    plan.fade = state.range(1) != 0;
    plan.fadeInSamples = plan.numSamples;
    ChunkEffects chunkEffects(plan);
    for (auto _ : state) {
        benchmark::DoNotOptimize(chunkEffects.process(values.data(), chunkValues));
    }
    countValues(state);
}

}

#define CALDERIN_FROM_FLOAT(NAME) BENCHMARK(conversion<float, int, &Util::NAME>)->Name(#NAME)
#define CALDERIN_TO_FLOAT(NAME) BENCHMARK(conversion<int, float, &Util::NAME>)->Name(#NAME)
#define CALDERIN_RAW(NAME, SOURCE, DEST, WIDTH, PACKS)                                             \
    BENCHMARK(rawConversion<SOURCE, DEST, &Util::NAME, WIDTH, PACKS>)->Name(#NAME)

CALDERIN_FROM_FLOAT(convertFloatTo8);
CALDERIN_FROM_FLOAT(convertFloatTo16);
CALDERIN_FROM_FLOAT(convertFloatTo24);
CALDERIN_FROM_FLOAT(convertFloatTo32);
CALDERIN_FROM_FLOAT(convertFloatTo8U);
CALDERIN_FROM_FLOAT(convertFloatTo16U);
CALDERIN_FROM_FLOAT(convertFloatTo24U);
BENCHMARK(conversion<float, short, &Util::convertFloatToShort16>)->Name("convertFloatToShort16");
CALDERIN_TO_FLOAT(convert8ToFloat);
CALDERIN_TO_FLOAT(convert16ToFloat);
CALDERIN_TO_FLOAT(convert24ToFloat);
CALDERIN_TO_FLOAT(convert32ToFloat);
CALDERIN_TO_FLOAT(convert8UToFloat);
CALDERIN_TO_FLOAT(convert16UToFloat);
CALDERIN_TO_FLOAT(convert24UToFloat);
CALDERIN_TO_FLOAT(convert32UToFloat);
CALDERIN_RAW(convertRaw16ToFloat, char, float, 2, false);
CALDERIN_RAW(convertRaw24ToFloat, char, float, 3, false);
CALDERIN_RAW(convertRaw32ToFloat, char, float, 4, false);
CALDERIN_RAW(convertRawTo16U, char, int, 2, false);
CALDERIN_RAW(convertRawTo24U, char, int, 3, false);
CALDERIN_RAW(convertRawTo32U, char, int, 4, false);
CALDERIN_RAW(convert16ToRaw, int, char, 2, true);
CALDERIN_RAW(convert32ToRaw, int, char, 4, true);
BENCHMARK(pack24)->Name("convert24ToRaw");
BENCHMARK(writer)
    ->Name("WaveOutput")
    ->ArgNames({"bits", "channels"})
    ->ArgsProduct({{8, 16, 24, 32}, {1, 2}});
BENCHMARK(reader)->Name("WaveInput")->ArgName("bits")->Arg(8)->Arg(16)->Arg(24)->Arg(32);
BENCHMARK(scan)->Name("SignalScan");
BENCHMARK(effects)
    ->Name("ChunkEffects")
    ->ArgNames({"gain", "fade"})
    ->Args({1, 0})
    ->Args({0, 1})
    ->Args({1, 1});

BENCHMARK_MAIN();
