#include "SoundTestTools.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <QFile>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using namespace SoundTestTools;

namespace {

constexpr int Frames = 44101;

/// A chirp from 200 to 5000 Hz with a second, different channel.
std::vector<double> chirp(int rate, int frames)
{
    std::vector<double> samples;
    for (int i = 0; i < frames; ++i) {
        const double t = double(i) / rate;
        samples.push_back(0.4 * std::sin(2 * M_PI * (200 * t + 2400 * t * t)));
        samples.push_back(0.3 * std::sin(2 * M_PI * 700 * t));
    }
    return samples;
}

double signalToNoise(const std::vector<double> &wanted, const std::vector<double> &got)
{
    double signal = 0.0;
    double error = 0.0;
    for (std::size_t i = 0; i < std::min(wanted.size(), got.size()); ++i) {
        signal += wanted[i] * wanted[i];
        error += (wanted[i] - got[i]) * (wanted[i] - got[i]);
    }
    return 10.0 * std::log10(signal / error);
}

class ExtAudioFileTest : public ::testing::Test
{
protected:
    QString file(const QString &name) const { return m_folder.filePath(name); }

    /// A second of chirp, left channel in `left`.
    void makeChirp()
    {
        const std::vector<double> samples = chirp(44100, Frames);
        for (std::size_t i = 0; i < samples.size(); i += 2) {
            m_left.push_back(samples[i]);
        }
        ASSERT_TRUE(writeWave(file(u"chirp.wav"_qs), 44100, 2, samples));
    }

    bool encode(const QString &name, const QStringList &options) const
    {
        if (name.endsWith(u".amr"_qs)) { // only the other tool can write it
            return MediaMaker::sox({file(u"chirp.wav"_qs), u"-r"_qs, u"8000"_qs, u"-c"_qs, u"1"_qs,
                u"-t"_qs, u"amr-nb"_qs, file(name)});
        }
        return MediaMaker::ffmpeg(
            QStringList {u"-i"_qs, file(u"chirp.wav"_qs)} + options + QStringList {file(name)});
    }

    QTemporaryDir m_folder;
    std::vector<double> m_left;
};

}

TEST_F(ExtAudioFileTest, GivesLosslessSamplesToTheBit)
{
    const struct
    {
        int bits;
        const char *codec;
        const char *name;
    } cases[] = {{16, "pcm_s16le", "a.wav"}, {16, "flac", "a.flac"}, {16, "alac", "a.m4a"},
        {16, "pcm_s16be", "a.aiff"}, {16, "pcm_s16le", "a.mkv"}, {16, "pcm_s16be", "a.caf"},
        {16, "pcm_s16be", "a.au"}, {16, "pcm_s16le", "a.mov"}, {24, "pcm_s24le", "b.wav"},
        {24, "flac", "b.flac"}, {24, "alac", "b.m4a"}, {24, "pcm_s24be", "b.aiff"},
        {24, "tta", "b.tta"}, {32, "pcm_s32le", "c.wav"}, {32, "pcm_s32be", "c.caf"}};
    for (const auto &test : cases) {
        SCOPED_TRACE(test.name);
        const QByteArray raw = noise(Frames * test.bits / 4, 7);
        ASSERT_TRUE(MediaMaker::writeFile(file(u"raw"_qs), raw));
        ASSERT_TRUE(MediaMaker::ffmpeg({u"-f"_qs, u"s%1le"_qs.arg(test.bits), u"-ar"_qs,
            u"44100"_qs, u"-ac"_qs, u"2"_qs, u"-i"_qs, file(u"raw"_qs), u"-c:a"_qs,
            QLatin1String(test.codec), u"-strict"_qs, u"experimental"_qs, u"-sample_fmt"_qs,
            QLatin1String(std::strcmp(test.codec, "alac") != 0 ? test.bits == 16 ? "s16" : "s32"
                    : test.bits == 16                          ? "s16p"
                                                               : "s32p"),
            file(QLatin1String(test.name))}));
        const Read read = readAll(file(QLatin1String(test.name)), 44100, test.bits);
        EXPECT_EQ(read.frames, Frames);
        EXPECT_TRUE(read.bytes == raw);
    }
}

TEST_F(ExtAudioFileTest, RoundsAndLimitsWithoutDither)
{
    // Half a step up, just below, the end of the scale from both sides, what isn't a number.
    const float values[] = {0.5F / 32768, 1.49F / 32768, -1.51F / 32768, 0.99999F, 1.0F, 3.0F,
        -1.0F, -7.0F, std::nanf(""), 0.25F};
    const qint16 wanted[] = {0, 1, -2, 32767, 32767, 32767, -32768, -32768, 0, 8192};
    const QByteArray raw(reinterpret_cast<const char *>(values), sizeof(values));
    ASSERT_TRUE(MediaMaker::writeFile(file(u"raw"_qs), raw));
    ASSERT_TRUE(MediaMaker::ffmpeg({u"-f"_qs, u"f32le"_qs, u"-ar"_qs, u"44100"_qs, u"-ac"_qs,
        u"1"_qs, u"-i"_qs, file(u"raw"_qs), u"-c:a"_qs, u"pcm_f32le"_qs, file(u"f.wav"_qs)}));
    const Read read = readAll(file(u"f.wav"_qs), 44100, 16);
    ASSERT_EQ(read.frames, 10);
    qint16 got[20];
    std::memcpy(got, read.bytes.constData(), sizeof(got));
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(got[2 * i], wanted[i]) << i; // mono is two equal channels at full level
        EXPECT_EQ(got[2 * i + 1], wanted[i]) << i;
    }
}

TEST_F(ExtAudioFileTest, CutsDelayAndPaddingAndKeepsTheTime)
{
    makeChirp();
    const struct
    {
        const char *name;
        QStringList options;
        qint64 frames;
        double quality; ///< dB against the source at the same place
    } cases[] = {
        {"a.m4a", {u"-c:a"_qs, u"aac"_qs}, Frames, 14},
        {"b.mp4", {u"-c:a"_qs, u"aac"_qs, u"-movie_timescale"_qs, u"44100"_qs}, Frames, 14},
        {"c.mov", {u"-c:a"_qs, u"pcm_s16le"_qs}, Frames, 60},
        {"d.mp3", {u"-c:a"_qs, u"libmp3lame"_qs}, Frames, 20},
        {"e.ogg", {u"-c:a"_qs, u"libvorbis"_qs}, Frames, 10},
        {"f.ogg", {u"-c:a"_qs, u"libvorbis"_qs, u"-page_duration"_qs, u"20000"_qs}, Frames, 10},
        {"g.opus", {u"-c:a"_qs, u"libopus"_qs, u"-b:a"_qs, u"192k"_qs}, Frames, 10},
        {"h.oga", {u"-c:a"_qs, u"flac"_qs}, Frames, 60},
        {"i.aac", {u"-c:a"_qs, u"aac"_qs}, 46080, -5},
        {"j.wma", {u"-c:a"_qs, u"wmav2"_qs}, 43008, -5},
        {"k.ac3", {u"-c:a"_qs, u"ac3"_qs}, 44544, -5},
        {"l.mp2", {u"-c:a"_qs, u"mp2"_qs}, 44928, -5},
        {"m.mka", {u"-c:a"_qs, u"libopus"_qs}, Frames, 5},
        {"n.ts", {u"-c:a"_qs, u"aac"_qs}, 46080, -5},
        {"o.avi", {u"-c:a"_qs, u"libmp3lame"_qs}, 46080, -5},
        {"p.spx", {u"-c:a"_qs, u"libspeex"_qs, u"-ar"_qs, u"32000"_qs}, Frames, -5},
        {"q.amr", {}, Frames, -5},
        {"r.wav", {u"-c:a"_qs, u"adpcm_ima_wav"_qs}, 44748, 15},
        {"s.au", {u"-c:a"_qs, u"pcm_mulaw"_qs}, Frames, 20},
    };
    for (const auto &test : cases) {
        SCOPED_TRACE(test.name);
        ASSERT_TRUE(encode(QLatin1String(test.name), test.options));
        const Read read = readAll(file(QLatin1String(test.name)), 44100, 16);
        EXPECT_EQ(read.status, noErr);
        // Codecs with a frame of their own that isn't stated may end up to two of them later.
        EXPECT_NEAR(read.frames, test.frames, test.quality < 0 ? 2304 : test.quality < 6 ? 960 : 1);
        EXPECT_GT(signalToNoise(m_left, read.samples(16, 0)), test.quality);
    }
    // What the tool's own decoder gives is what the reader gives.
    const QByteArray other = MediaMaker::decode(file(u"d.mp3"_qs), u"s16le"_qs);
    const QByteArray ours = readAll(file(u"d.mp3"_qs), 44100, 16).bytes;
    ASSERT_EQ(other.size(), ours.size());
    for (int i = 0; i + 1 < ours.size(); i += 2) {
        qint16 a = 0;
        qint16 b = 0;
        std::memcpy(&a, ours.constData() + i, 2);
        std::memcpy(&b, other.constData() + i, 2);
        ASSERT_LE(std::abs(a - b), 1) << i;
    }
}

TEST_F(ExtAudioFileTest, TakesTheDefaultSoundOfVideosAndLeavesPicturesAlone)
{
    makeChirp();
    const QStringList video {u"-f"_qs, u"lavfi"_qs, u"-i"_qs, u"testsrc=d=1:s=64x48:r=10"_qs};
    const QString wave = file(u"chirp.wav"_qs);
    ASSERT_TRUE(MediaMaker::ffmpeg(video
        + QStringList {
            u"-i"_qs, wave, u"-c:v"_qs, u"mpeg4"_qs, u"-c:a"_qs, u"aac"_qs, file(u"v.mp4"_qs)}));
    ASSERT_TRUE(MediaMaker::ffmpeg(video
        + QStringList {u"-f"_qs, u"lavfi"_qs, u"-i"_qs, u"sine=d=0.3"_qs, u"-i"_qs, wave,
            u"-map"_qs, u"0"_qs, u"-map"_qs, u"1"_qs, u"-map"_qs, u"2"_qs, u"-c:a"_qs, u"flac"_qs,
            u"-disposition:a:0"_qs, u"0"_qs, u"-disposition:a:1"_qs, u"default"_qs,
            file(u"two.mkv"_qs)}));
    ASSERT_TRUE(
        MediaMaker::ffmpeg(video + QStringList {u"-frames:v"_qs, u"1"_qs, file(u"p.png"_qs)}));
    ASSERT_TRUE(MediaMaker::ffmpeg({u"-i"_qs, wave, u"-i"_qs, file(u"p.png"_qs), u"-map"_qs,
        u"0"_qs, u"-map"_qs, u"1"_qs, u"-c:a"_qs, u"libmp3lame"_qs, u"-disposition:v"_qs,
        u"attached_pic"_qs, file(u"cover.mp3"_qs)}));
    ASSERT_TRUE(
        MediaMaker::ffmpeg(video + QStringList {u"-c:v"_qs, u"mpeg4"_qs, file(u"mute.mp4"_qs)}));
    for (const char *name : {"v.mp4", "two.mkv", "cover.mp3"}) {
        EXPECT_EQ(readAll(file(QLatin1String(name)), 44100, 16).frames, Frames) << name;
    }
    EXPECT_EQ(readAll(file(u"mute.mp4"_qs), 44100, 16).status, statusCode("typ?"));
    EXPECT_EQ(readAll(file(u"p.png"_qs), 44100, 16).status, statusCode("typ?"));
}

TEST_F(ExtAudioFileTest, FollowsChangesAndChains)
{
    makeChirp();
    ASSERT_TRUE(encode(u"a.ogg"_qs, {u"-c:a"_qs, u"libvorbis"_qs}));
    ASSERT_TRUE(encode(u"b.ogg"_qs, {u"-c:a"_qs, u"libvorbis"_qs, u"-ac"_qs, u"1"_qs}));
    ASSERT_TRUE(encode(u"a.opus"_qs, {u"-c:a"_qs, u"libopus"_qs}));
    ASSERT_TRUE(encode(u"a.adts"_qs, {u"-c:a"_qs, u"aac"_qs, u"-f"_qs, u"adts"_qs}));
    ASSERT_TRUE(encode(u"b.adts"_qs,
        {u"-c:a"_qs, u"aac"_qs, u"-f"_qs, u"adts"_qs, u"-ar"_qs, u"22050"_qs, u"-ac"_qs, u"1"_qs}));
    const struct
    {
        const char *first;
        const char *second;
        qint64 frames;
        int tolerance;
    } cases[] = {{"a.ogg", "b.ogg", 2 * Frames, 0}, {"a.opus", "a.opus", 2 * Frames, 2},
        {"a.adts", "b.adts", 46080 + 47104, 2048}};
    for (const auto &test : cases) {
        SCOPED_TRACE(test.first);
        const QByteArray both = MediaMaker::bytesOf(file(QLatin1String(test.first)))
            + MediaMaker::bytesOf(file(QLatin1String(test.second)));
        ASSERT_TRUE(MediaMaker::writeFile(file(u"both"_qs), both));
        const Read read = readAll(file(u"both"_qs), 44100, 16);
        EXPECT_NEAR(read.frames, test.frames, test.tolerance);
        const std::vector<double> left = read.samples(16, 0);
        const auto loudest = [](auto begin, auto end) { return *std::max_element(begin, end); };
        EXPECT_GT(loudest(left.end() - 20000, left.end()), 0.25); // the second part sounds
    }
}

TEST_F(ExtAudioFileTest, RefusesWhatIsNoSoundByCode)
{
    ASSERT_TRUE(MediaMaker::writeFile(file(u"empty.mp3"_qs), {}));
    ASSERT_TRUE(MediaMaker::writeFile(file(u"text.txt"_qs), QByteArray(5000, 'x')));
    ASSERT_TRUE(MediaMaker::writeFile(file(u"list.m3u8"_qs), "#EXTM3U\n#EXTINF:1,\nchirp.wav\n"));
    ASSERT_EQ(mkfifo(QFile::encodeName(file(u"pipe.wav"_qs)).constData(), 0600), 0);
    makeChirp();
    ASSERT_TRUE(encode(u"a.m4a"_qs, {u"-c:a"_qs, u"aac"_qs}));
    ASSERT_TRUE(MediaMaker::writeFile(
        file(u"noindex.m4a"_qs), MediaMaker::bytesOf(file(u"a.m4a"_qs)).left(3000)));
    const auto open = [](const QUrl &url) {
        ExtAudioFileRef opened = nullptr;
        const OSStatus status = ExtAudioFileOpenURL(url, &opened);
        EXPECT_EQ(opened, nullptr);
        return status;
    };
    const auto openFile
        = [&](const QString &name) { return open(QUrl::fromLocalFile(file(name))); };
    for (const char *name : {"missing.wav", "pipe.wav", ".", "chirp.wav/below"}) {
        EXPECT_EQ(openFile(QLatin1String(name)), -43) << name;
    }
    EXPECT_EQ(open(QUrl::fromLocalFile(u"/dev/zero"_qs)), -43);
    EXPECT_EQ(open(QUrl(u"http://velmora.example/a.mp3"_qs)), -50);
    EXPECT_EQ(open(QUrl()), -50);
    EXPECT_EQ(openFile(u"empty.mp3"_qs), statusCode("typ?"));
    EXPECT_EQ(openFile(u"text.txt"_qs), statusCode("typ?"));
    EXPECT_NE(openFile(u"list.m3u8"_qs), noErr); // a file never leads to another one
    EXPECT_EQ(openFile(u"noindex.m4a"_qs), statusCode("dta?"));

    ExtAudioFileRef chirpFile = nullptr;
    ASSERT_EQ(ExtAudioFileOpenURL(QUrl::fromLocalFile(file(u"chirp.wav"_qs)), &chirpFile), noErr);
    char bytes[64];
    AudioBufferList list;
    list.mNumberBuffers = 1;
    list.mBuffers[0] = {2, sizeof(bytes), bytes};
    UInt32 frames = 8;
    EXPECT_EQ(ExtAudioFileRead(chirpFile, &frames, &list), -50); // no client format yet
    AudioStreamBasicDescription format = clientFormat(44100, 16);
    format.mBitsPerChannel = 20;
    EXPECT_EQ(ExtAudioFileSetProperty(chirpFile, fourCC("cfmt"), sizeof(format), &format),
        statusCode("fmt?"));
    format = clientFormat(44100, 16);
    EXPECT_EQ(ExtAudioFileSetProperty(chirpFile, fourCC("cfmt"), 3, &format), -50);
    EXPECT_EQ(ExtAudioFileSetProperty(chirpFile, fourCC("cfmt"), sizeof(format), &format), noErr);
    frames = 1000; // the buffer bounds the read
    EXPECT_EQ(ExtAudioFileRead(chirpFile, &frames, &list), noErr);
    EXPECT_EQ(frames, 16U);
    EXPECT_EQ(ExtAudioFileDispose(chirpFile), noErr);
}

TEST_F(ExtAudioFileTest, TakesNoTextThatLeadsElsewhereOrNeverEnds)
{
    makeChirp();
    const struct
    {
        const char *name;
        const char *text;
    } cases[] = {{"list.mp3", "ffconcat version 1.0\nfile 'chirp.wav'\n"},
        {"stream.mp3",
            "v=0\no=- 0 0 IN IP4 127.0.0.1\ns=a\nc=IN IP4 127.0.0.1\nt=0 0\n"
            "m=audio 45678 RTP/AVP 0\n"},
        {"script.mp3", "allon: 100+5/50\nNOW allon\n"},
        {"parts.ts", "#EXTM3U\n#EXT-X-TARGETDURATION:2\n#EXTINF:1,\nchirp.wav\n"},
        {"parts.avi",
            "<MPD profiles=\"urn:mpeg:dash:profile:isoff-on-demand:2011\"><Period><BaseURL>"
            "chirp.wav</BaseURL></Period></MPD>"}};
    for (const auto &test : cases) {
        const QString path = file(QLatin1String(test.name));
        ASSERT_TRUE(MediaMaker::writeFile(path, test.text));
        ExtAudioFileRef opened = nullptr;
        EXPECT_EQ(ExtAudioFileOpenURL(QUrl::fromLocalFile(path), &opened), statusCode("typ?"))
            << test.name;
    }
}

TEST_F(ExtAudioFileTest, GivesNoNoiseForEncryptedSound)
{
    makeChirp();
    const QString key(32, QLatin1Char('7'));
    ASSERT_TRUE(encode(u"a.m4a"_qs,
        {u"-c:a"_qs, u"aac"_qs, u"-encryption_scheme"_qs, u"cenc-aes-ctr"_qs, u"-encryption_key"_qs,
            key, u"-encryption_kid"_qs, key}));
    EXPECT_EQ(readAll(file(u"a.m4a"_qs), 44100, 16).frames, 0);
    // What states its protection in the header isn't even opened.
    ASSERT_TRUE(encode(u"b.wma"_qs, {u"-c:a"_qs, u"wmav2"_qs}));
    constexpr int headerBytes = 30; // the header's objects come behind
    const QByteArray contentEncryption
        = QByteArray::fromHex("fbb3112223bdd211b4b700a0c955fc6e" // its GUID, its size
                              "3400000000000000"
                              "00000000") // no secret data
        + QByteArray::fromHex("0400000044524d00" // "DRM"
                              "040000006b657900"
                              "0400000075726c00");
    const QByteArray clear = MediaMaker::bytesOf(file(u"b.wma"_qs));
    ASSERT_TRUE(MediaMaker::writeFile(
        file(u"b.wma"_qs), clear.left(headerBytes) + contentEncryption + clear.mid(headerBytes)));
    EXPECT_EQ(readAll(file(u"b.wma"_qs), 44100, 16).status, statusCode("fmt?"));
}

TEST_F(ExtAudioFileTest, TakesLargePiecesInPartsAndNoneThatTakeAllMemory)
{
    const QByteArray raw = noise(3000001, 5);
    ASSERT_TRUE(MediaMaker::writeAvi(file(u"a.avi"_qs), raw));
    const Read read = readAll(file(u"a.avi"_qs), 44100, 16);
    ASSERT_EQ(read.frames, raw.size());
    for (int i = 0; i < raw.size(); ++i) {
        qint16 pair[2];
        std::memcpy(pair, read.bytes.constData() + 4 * qint64(i), sizeof(pair));
        ASSERT_EQ(pair[0], (uchar(raw.at(i)) - 128) * 256) << i;
        ASSERT_EQ(pair[1], pair[0]) << i;
    }
    ASSERT_TRUE(MediaMaker::writeAvi(file(u"b.avi"_qs), {}, 100000000));
    EXPECT_EQ(readAll(file(u"b.avi"_qs), 44100, 16).status, statusCode("chk?"));
    ASSERT_TRUE(MediaMaker::writeAvi(file(u"c.avi"_qs), {}, 560000000));
    EXPECT_EQ(readAll(file(u"c.avi"_qs), 44100, 16).status, -108);
}

TEST_F(ExtAudioFileTest, EndsOnDamagedAndCutFiles)
{
    makeChirp();
    const struct
    {
        const char *name;
        const char *codec;
    } cases[] = {{"a.mp3", "libmp3lame"}, {"a.flac", "flac"}, {"a.ogg", "libvorbis"},
        {"a.opus", "libopus"}, {"a.m4a", "aac"}, {"a.mkv", "aac"}, {"a.wav", "pcm_s16le"},
        {"a.wma", "wmav2"}, {"a.aiff", "pcm_s16be"}, {"a.avi", "ac3"}};
    for (const auto &test : cases) {
        SCOPED_TRACE(test.name);
        const QString path = file(QLatin1String(test.name));
        ASSERT_TRUE(encode(QLatin1String(test.name),
            {u"-c:a"_qs, QLatin1String(test.codec), u"-movflags"_qs, u"+faststart"_qs,
                u"-page_duration"_qs, u"100000"_qs}));
        const QByteArray whole = MediaMaker::bytesOf(path);
        QByteArray hurt = whole;
        hurt.replace(whole.size() / 2, 40, noise(40, 3));
        ASSERT_TRUE(MediaMaker::writeFile(path, hurt));
        EXPECT_GT(readAll(path, 44100, 16).frames, Frames * 7 / 10);
        ASSERT_TRUE(MediaMaker::writeFile(path, whole.left(whole.size() * 6 / 10)));
        EXPECT_GT(readAll(path, 44100, 24).frames, Frames * 2 / 10);
        // Whatever the bytes: it ends, and gives no more than a few times the sound.
        for (quint32 seed = 1; seed <= 12; ++seed) {
            hurt = whole;
            const QByteArray places = noise(64, seed);
            for (int i = 0; i + 3 < places.size(); i += 4) {
                const auto place = static_cast<int>(
                    (uchar(places[i]) * 65536U + uchar(places[i + 1]) * 256U + uchar(places[i + 2]))
                    % unsigned(seed % 2 == 0 ? std::min(whole.size(), 600) : whole.size()));
                hurt[place] = places[i + 3];
            }
            ASSERT_TRUE(MediaMaker::writeFile(path, hurt));
            const Read read = readAll(path, 44100, 16);
            EXPECT_TRUE(read.status != noErr || read.frames < 500 * Frames);
        }
    }
}

TEST_F(ExtAudioFileTest, WritesFlacThatReadsBack)
{
    for (const int bits : {16, 24}) {
        AudioStreamBasicDescription output;
        output.mSampleRate = 44100;
        output.mFormatID = kAudioFormatFLAC;
        output.mChannelsPerFrame = 2;
        output.mBitsPerChannel = static_cast<UInt32>(bits);
        const QUrl url = QUrl::fromLocalFile(file(u"out.flac"_qs));
        ExtAudioFileRef flac = nullptr;
        ASSERT_EQ(ExtAudioFileCreateWithURL(
                      url, kAudioFileFLACType, &output, nullptr, kAudioFileFlags_EraseFile, &flac),
            noErr);
        ExtAudioFileRef second = nullptr;
        EXPECT_EQ(
            ExtAudioFileCreateWithURL(url, kAudioFileFLACType, &output, nullptr, 0, &second), -48);
        const AudioStreamBasicDescription client = clientFormat(44100, 1);
        ASSERT_EQ(ExtAudioFileSetProperty(flac, fourCC("cfmt"), sizeof(client), &client), noErr);
        const std::vector<double> samples = chirp(44100, 10000);
        std::vector<float> floats(samples.begin(), samples.end());
        AudioBufferList list;
        list.mNumberBuffers = 1;
        for (UInt32 done = 0; done < 10000; done += 2500) {
            list.mBuffers[0] = {2, 2500 * 8, floats.data() + std::size_t(2) * done};
            ASSERT_EQ(ExtAudioFileWrite(flac, 2500, &list), noErr);
            ASSERT_EQ(ExtAudioFileWrite(flac, 0, &list), noErr);
        }
        AudioConverterRef converter = nullptr;
        UInt32 size = sizeof(AudioConverterRef);
        ASSERT_EQ(ExtAudioFileGetProperty(flac, fourCC("acnv"), &size, &converter), noErr);
        const UInt32 rate = 128000;
        EXPECT_EQ(AudioConverterSetProperty(converter, fourCC("brat"), sizeof(rate), &rate),
            statusCode("prop"));
        ASSERT_EQ(ExtAudioFileDispose(flac), noErr);

        const QString path = file(u"out.flac"_qs);
        EXPECT_EQ(MediaMaker::probe(path, u"stream=bits_per_raw_sample"_qs), QString::number(bits));
        const Read read = readAll(path, 44100, 32);
        ASSERT_EQ(read.frames, 10000);
        const std::vector<double> left = read.samples(32, 0);
        for (std::size_t i = 0; i < left.size(); ++i) {
            ASSERT_NEAR(left[i], floats[2 * i], 0.51 / (1 << (bits - 1)));
        }
    }
}
