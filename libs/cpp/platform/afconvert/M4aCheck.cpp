#include "M4aCheck.h"

#include "ConvertError.h"
#include <algorithm>
#include <array>
#include <cstring>
#include <fstream>
#include <map>
#include <vector>

namespace {

/// Where the body of a box lies.
struct Place
{
    std::uint64_t position = 0;
    std::uint64_t size = 0;
};

/// Walks the boxes of a file.
class Walker
{
public:
    explicit Walker(const std::string &path)
        : m_file(path, std::ios::binary)
    {
        m_file.seekg(0, std::ios::end);
        m_size = m_file ? static_cast<std::uint64_t>(m_file.tellg()) : 0;
    }

    std::uint64_t size() const { return m_size; }

    std::uint64_t number(std::uint64_t position, int bytes)
    {
        std::array<unsigned char, 8> raw {};
        m_file.seekg(static_cast<std::streamoff>(position));
        readInto(raw.data(), bytes);
        std::uint64_t value = 0;
        for (int i = 0; i < bytes; ++i) {
            value = value << 8 | raw[i];
        }
        return value;
    }

    /// Calls visit with each of so many numbers of 32 bits.
    template <typename Visitor>
    void table(std::uint64_t position, std::uint64_t count, Visitor visit)
    {
        m_file.seekg(static_cast<std::streamoff>(position));
        std::array<unsigned char, 65536> raw {};
        while (count > 0) {
            const std::uint64_t part = std::min<std::uint64_t>(count, raw.size() / 4);
            readInto(raw.data(), static_cast<std::streamsize>(part * 4));
            for (const unsigned char *at = raw.data(); at != raw.data() + part * 4; at += 4) {
                visit(std::uint32_t {at[0]} << 24 | std::uint32_t {at[1]} << 16
                    | std::uint32_t {at[2]} << 8 | at[3]);
            }
            count -= part;
        }
    }

    /// The boxes of a level by their types; they must fill the place to its last byte.
    std::map<std::string, Place> children(Place parent)
    {
        std::map<std::string, Place> found;
        const std::uint64_t end = parent.position + parent.size;
        for (std::uint64_t at = parent.position; at < end;) {
            std::uint64_t size = number(at, 4);
            const std::uint64_t type = number(at + 4, 4);
            const std::uint64_t header = size == 1 ? 16 : 8;
            size = size == 1 ? number(at + 8, 8) : size;
            if (size < header || size > end - at) {
                throw ConvertError("the written file has a box of a wrong size");
            }
            std::string name(4, ' ');
            for (int i = 0; i < 4; ++i) {
                name[i] = static_cast<char>(type >> (24 - 8 * i) & 0xff);
            }
            found[name] = {at + header, size - header};
            at += size;
        }
        return found;
    }

    /// The box at the end of a chain of types below the level.
    Place descend(std::map<std::string, Place> level, std::initializer_list<const char *> types)
    {
        Place place;
        for (const char *type : types) {
            const auto found = level.find(type);
            if (found == level.end()) {
                throw ConvertError(std::string("the written file has no box ") + type);
            }
            place = found->second;
            // All but the tables at the end of the chains are plain containers.
            if (type != *(types.end() - 1)) {
                level = children(place);
            }
        }
        return place;
    }

private:
    void readInto(unsigned char *bytes, std::streamsize count)
    {
        m_file.read(reinterpret_cast<char *>(bytes), count);
        if (!m_file) {
            throw ConvertError("the written file can't be read again");
        }
    }

    std::ifstream m_file;
    std::uint64_t m_size = 0;
};

void require(bool holds, const char *what)
{
    if (!holds) {
        throw ConvertError(std::string("the written file is damaged: ") + what);
    }
}

}

void M4aCheck::verify(const std::string &path, std::int64_t frames, std::int64_t packets)
{
    Walker walker(path);
    const auto top = walker.children({0, walker.size()});
    const Place media = walker.descend(top, {"mdat"});
    const Place edits = walker.descend(top, {"moov", "trak", "edts", "elst"});
    const Place sizes = walker.descend(top, {"moov", "trak", "mdia", "minf", "stbl", "stsz"});

    const int timeBytes = walker.number(edits.position, 1) == 1 ? 8 : 4;
    require(walker.number(edits.position + 8, timeBytes) == static_cast<std::uint64_t>(frames),
        "its length isn't the source's");
    const std::uint64_t count = walker.number(sizes.position + 8, 4);
    require(count == static_cast<std::uint64_t>(packets) && sizes.size == 12 + 4 * count,
        "packets are missing");
    std::uint64_t bytes = 0;
    walker.table(sizes.position + 12, count, [&bytes](std::uint32_t size) {
        require(size > 0, "a packet is empty");
        bytes += size;
    });
    require(bytes == media.size, "its packets don't fill its data");
}
