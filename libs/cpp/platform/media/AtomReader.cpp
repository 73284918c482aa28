#include "AtomReader.h"

#include <QtEndian>

namespace {

// Real files stay far below: some hundred atoms, and pictures of some megabytes.
constexpr int maximumAtoms = 200'000;
constexpr qint64 maximumBytes = 128LL * 1024 * 1024;

}

AtomReader::AtomReader(QIODevice &device)
    : m_device(device)
    , m_atomsLeft(maximumAtoms)
    , m_bytesLeft(maximumBytes)
{
}

Atom AtomReader::root() const
{
    Atom atom;
    atom.end = m_device.size();
    return atom;
}

std::optional<Atom> AtomReader::atomAt(qint64 position, qint64 end)
{
    constexpr int shortHeader = 8;
    constexpr int longHeader = 16;
    uchar header[longHeader];
    if (end - position < shortHeader || --m_atomsLeft < 0 || !m_device.seek(position)
        || m_device.read(reinterpret_cast<char *>(header), shortHeader) != shortHeader) {
        return {};
    }
    Atom atom;
    atom.type = qFromBigEndian<quint32>(header + 4);
    atom.start = position;
    atom.body = position + shortHeader;
    quint64 size = qFromBigEndian<quint32>(header);
    if (size == 1) {
        if (end - position < longHeader
            || m_device.read(reinterpret_cast<char *>(header) + shortHeader, shortHeader)
                != shortHeader) {
            return {};
        }
        size = qFromBigEndian<quint64>(header + shortHeader);
        atom.body = position + longHeader;
    } else if (size == 0) {
        size = static_cast<quint64>(end - position);
        atom.isOpen = true;
    }
    if (size < static_cast<quint64>(atom.body - position)) {
        return {};
    }
    atom.isWhole = size <= static_cast<quint64>(end - position);
    atom.end = atom.isWhole ? position + static_cast<qint64>(size) : end;
    return atom;
}

void AtomReader::forEach(qint64 from, qint64 end, const std::function<bool(const Atom &)> &visit)
{
    while (const std::optional<Atom> atom = atomAt(from, end)) {
        if (!visit(*atom)) {
            return;
        }
        from = atom->end;
    }
}

void AtomReader::forEachChild(const Atom &parent, const std::function<bool(const Atom &)> &visit)
{
    forEach(parent.body, parent.end, visit);
}

std::optional<Atom> AtomReader::find(qint64 from, qint64 end, quint32 type)
{
    std::optional<Atom> found;
    forEach(from, end, [&](const Atom &atom) {
        if (atom.type == type) {
            found = atom;
        }
        return !found;
    });
    return found;
}

QByteArray AtomReader::bytes(qint64 from, qint64 end)
{
    const qint64 size = end - from;
    if (size < 0 || size > m_bytesLeft || !m_device.seek(from)) {
        return {};
    }
    m_bytesLeft -= size;
    QByteArray result = m_device.read(size);
    return result.size() == size ? result : QByteArray();
}
