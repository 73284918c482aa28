#include "WaveInput.h"

#include "FileUtil.h"
#include "Literals.h"
#include <algorithm>
#include <cstring>

namespace QMMultiMedia {

namespace {

constexpr int tagPcm = 1;
constexpr std::int64_t headerSize = 8;
constexpr std::uint32_t fmtSize = 16;

bool isKnownId(const char *id)
{
    constexpr std::array<const char *, 6> known {"fmt ", "data", "LIST", "levl", "fact", "cue "};
    return std::any_of(known.begin(), known.end(),
        [id](const char *candidate) { return std::memcmp(id, candidate, 4) == 0; });
}

bool isPrintable(const char *id)
{
    return std::all_of(id, id + 4, [](char c) { return c >= ' ' && c <= '~'; });
}

}

bool WaveInput::open(const char *path)
{
    m_fileInfo.setComment(QString());
    m_fileInfo.setDataOffset(0);
    m_settings.setFmt(0);
    m_nFormatTag = 0;
    if (!openStream(path) || !parse()) {
        close();
        return false;
    }
    return true;
}

bool WaveInput::parse()
{
    std::array<char, 4> form {};
    if (!readChunk(&m_chunk, 0) || !m_chunk.is("RIFF")
        || std::fread(form.data(), form.size(), 1, m_pFile) != 1
        || std::memcmp(form.data(), "WAVE", form.size()) != 0) {
        return false;
    }
    std::int64_t remaining = m_chunk.paddedSize() - 4;
    m_fileInfo.setFileSize(static_cast<quint64>(m_chunk.paddedSize()));
    while (remaining >= headerSize && readChunk(&m_chunk, 0)) {
        const std::int64_t body = streamPosition();
        std::int64_t end = body + m_chunk.paddedSize();
        remaining -= (static_cast<std::int64_t>(m_chunk.size) + 9) & ~1LL;
        if (m_chunk.is("LIST")) {
            if (!readListChunk()) {
                return false;
            }
        } else if (m_chunk.is("fmt ") && m_nFormatTag == 0) {
            if (!readFmtChunk()) {
                return false;
            }
        } else if (m_chunk.is("data") && m_fileInfo.dataOffset() == 0) {
            initDataChunk();
        } else if (m_chunk.is("bext")) {
            readBextChunk();
            end = endOfBext(body);
        } else if (m_chunk.is("levl")) {
            readLevlChunk();
        }
        if (!seekStream(end)) {
            break;
        }
    }
    if (m_fileInfo.dataOffset() == 0 || m_nFormatTag == 0) {
        return false;
    }
    countSamples();
    m_settings.setFmt(fmt());
    return rewind() == 0;
}

bool WaveInput::readFmtChunk()
{
    if (m_chunk.size < fmtSize || bytesBehind(streamPosition()) < fmtSize) {
        return false;
    }
    m_nFormatTag = FileUtil::readS(m_pFile, false);
    m_settings.setChannels(static_cast<short>(FileUtil::readS(m_pFile, false)));
    m_settings.setSampleRate(FileUtil::readL(m_pFile, false));
    FileUtil::readL(m_pFile, false); // bytes per second
    FileUtil::readS(m_pFile, false); // block align
    m_settings.setBitsPerSample(static_cast<short>(FileUtil::readS(m_pFile, false)));
    return m_nFormatTag == tagPcm && hasUsableFormat();
}

bool WaveInput::readListChunk()
{
    std::array<char, 4> type {};
    if (m_chunk.size < type.size() || std::fread(type.data(), type.size(), 1, m_pFile) != 1) {
        return false;
    }
    if (std::memcmp(type.data(), "INFO", type.size()) != 0) {
        return true;
    }
    std::int64_t left = static_cast<std::int64_t>(m_chunk.size) - 4;
    while (left >= headerSize) {
        Chunk sub;
        if (!readChunk(&sub, 0)) {
            return false;
        }
        const std::int64_t body = streamPosition();
        left -= headerSize;
        if (sub.is("ICMT")) {
            QString comment;
            if (!readText(std::min<std::int64_t>(sub.size, left), &comment)) {
                return false;
            }
            m_fileInfo.setComment(comment);
        }
        left -= sub.paddedSize();
        if (left >= headerSize && !seekStream(body + sub.paddedSize())) {
            return false;
        }
    }
    return true;
}

/// The samples begin here; what the file doesn't hold doesn't count.
void WaveInput::initDataChunk()
{
    const std::int64_t body = streamPosition();
    m_fileInfo.setDataOffset(static_cast<quint64>(body - headerSize));
    m_fileInfo.setDataSize(
        static_cast<quint64>(std::min<std::int64_t>(m_chunk.size, bytesBehind(body))));
}

void WaveInput::readBextChunk()
{
    if (m_chunk.size < static_cast<std::uint32_t>(EBUInfo::fixedSize)) {
        return;
    }
    m_ebuInfo = MTools::Handle<EBUInfo>(std::make_unique<EBUInfo>().release());
    m_ebuInfo->setChunkSize(static_cast<int>(m_chunk.size));
    m_ebuInfo->initFromHeader(m_pFile);
}

/// Where the next chunk begins: our own files have no pad byte behind an odd "bext", others have
/// one.
std::int64_t WaveInput::endOfBext(std::int64_t body)
{
    const std::int64_t end = body + m_chunk.size;
    std::array<char, 5> next {};
    if (m_chunk.size % 2 == 0 || !seekStream(end)
        || std::fread(next.data(), 1, next.size(), m_pFile) != next.size()) {
        return body + m_chunk.paddedSize();
    }
    const bool padded = isKnownId(next.data() + 1) || !isPrintable(next.data());
    return padded ? end + 1 : end;
}

void WaveInput::readLevlChunk()
{
    const std::int64_t place = streamPosition() - headerSize;
    if (m_chunk.size < EBUEnvelope::headerSize) {
        return;
    }
    const MTools::Handle<EBUEnvelope> envelope(std::make_unique<EBUEnvelope>().release());
    envelope->setChunkSize(static_cast<std::uint32_t>(m_chunk.paddedSize()));
    if (envelope->initFromHeader(m_pFile)) {
        m_ebuEnvelope = envelope;
        m_nEnvelopeOffset = place;
    }
}

short WaveInput::fmt() const
{
    switch (m_nFormatTag) {
    case tagPcm:
        break;
    case 257:
        return Settings::MuLaw;
    case 258:
        return Settings::ALaw;
    case 259:
        return Settings::ImaAdpcm;
    default:
        return Settings::Query;
    }
    switch (m_settings.bitsPerSample()) {
    case 8:
        return Settings::Unsigned8;
    case 16:
    case 32:
        return Settings::SignedLittle;
    case 24:
        return Settings::Signed24Normal;
    default:
        return Settings::Query;
    }
}

const char *WaveInput::name() const
{
    return "WaveInput";
}

QString WaveInput::extentions() const
{
    return u"wav wave bwf"_qs;
}

}
