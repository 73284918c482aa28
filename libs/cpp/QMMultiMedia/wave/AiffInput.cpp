#include "AiffInput.h"

#include "FileUtil.h"
#include "Literals.h"
#include "Util.h"
#include <algorithm>
#include <cstring>
#include <limits>

namespace QMMultiMedia {

namespace {

constexpr std::int64_t headerSize = 8;
constexpr std::uint32_t commSize = 18;
constexpr std::uint32_t ssndHeaderSize = 8;

}

bool AiffInput::open(const char *path)
{
    m_fileInfo.setComment(QString());
    m_fileInfo.setDataOffset(0);
    m_bCommon = false;
    if (!openStream(path) || !parse()) {
        close();
        return false;
    }
    return true;
}

bool AiffInput::parse()
{
    std::array<char, 4> form {};
    if (!readChunk(&m_chunk, 1) || !m_chunk.is("FORM")
        || std::fread(form.data(), form.size(), 1, m_pFile) != 1
        || std::memcmp(form.data(), "AIFF", form.size()) != 0) {
        return false;
    }
    std::int64_t remaining = m_chunk.paddedSize() - 4;
    m_fileInfo.setFileSize(static_cast<quint64>(m_chunk.paddedSize()));
    while (remaining > headerSize && readChunk(&m_chunk, 1)) {
        const std::int64_t end = streamPosition() + m_chunk.paddedSize();
        remaining -= headerSize + m_chunk.paddedSize();
        bool good = true;
        if (m_chunk.is("COMM")) {
            good = readCommChunk();
        } else if (m_chunk.is("SSND")) {
            good = readSsndChunk();
        } else if (m_chunk.is("COMT")) {
            good = readComtChunk();
        }
        if (!good) {
            return false;
        }
        if (!seekStream(end)) {
            break;
        }
    }
    if (m_fileInfo.dataOffset() == 0 || !m_bCommon) {
        return false;
    }
    countSamples();
    return rewind() == 0;
}

bool AiffInput::readCommChunk()
{
    if (m_chunk.size < commSize || bytesBehind(streamPosition()) < commSize) {
        return false;
    }
    m_settings.setChannels(static_cast<short>(FileUtil::readS(m_pFile, true)));
    const unsigned int frames = FileUtil::readL(m_pFile, true);
    m_settings.setBitsPerSample(static_cast<short>(FileUtil::readS(m_pFile, true)));
    std::array<char, 10> extended {};
    if (std::fread(extended.data(), extended.size(), 1, m_pFile) != 1 || !hasUsableFormat()) {
        return false;
    }
    const double rate = Util::convertFromIeeeExtended(extended.data());
    if (!(rate >= 0.0 && rate <= std::numeric_limits<unsigned int>::max())) {
        return false;
    }
    m_settings.setSampleRate(static_cast<unsigned int>(rate));
    m_settings.setFmt(fmt());
    m_fileInfo.setNumSamples(static_cast<quint64>(m_settings.channels()) * frames);
    m_bCommon = true;
    return true;
}

bool AiffInput::readSsndChunk()
{
    const std::int64_t body = streamPosition();
    if (m_chunk.size < ssndHeaderSize || bytesBehind(body) < ssndHeaderSize) {
        return false;
    }
    const std::int64_t offset = FileUtil::readL(m_pFile, true);
    const std::int64_t first = body + ssndHeaderSize + offset;
    const std::int64_t stated = static_cast<std::int64_t>(m_chunk.size) - ssndHeaderSize - offset;
    if (stated < 0) {
        return false;
    }
    m_fileInfo.setDataOffset(static_cast<quint64>(first - headerSize));
    m_fileInfo.setDataSize(static_cast<quint64>(std::min(stated, bytesBehind(first))));
    return true;
}

/// The first comment. Each has a time stamp and a marker before its length; some writers leave them
/// out, which shows by the length.
bool AiffInput::readComtChunk()
{
    const std::int64_t body = streamPosition();
    const std::int64_t size = m_chunk.size;
    constexpr std::int64_t shortHeader = 4;
    constexpr std::int64_t longHeader = 10;
    std::array<unsigned char, longHeader> header {};
    const auto wanted = static_cast<std::size_t>(std::min(size, longHeader));
    if (std::fread(header.data(), 1, wanted, m_pFile) != wanted) {
        return false;
    }
    const auto number
        = [&header](std::size_t at) { return std::int64_t(header[at]) << 8U | header[at + 1]; };
    if (number(0) == 0) {
        return true;
    }
    std::int64_t text = 0;
    std::int64_t length = 0;
    if (size >= longHeader && number(8) <= size - longHeader) {
        text = body + longHeader;
        length = number(8);
    } else if (size >= shortHeader && number(2) <= size - shortHeader) {
        text = body + shortHeader;
        length = number(2);
    }
    QString comment;
    if (length > 0 && (!seekStream(text) || !readText(length, &comment))) {
        return false;
    }
    m_fileInfo.setComment(comment);
    return true;
}

short AiffInput::fmt() const
{
    switch (m_settings.bitsPerSample()) {
    case 8:
        return Settings::Signed8;
    case 16:
        return Settings::SignedBig;
    case 24:
        return Settings::Signed24Swapped;
    default:
        return Settings::Query;
    }
}

const char *AiffInput::name() const
{
    return "AiffInput";
}

QString AiffInput::extentions() const
{
    return u"aif aiff"_qs;
}

}
