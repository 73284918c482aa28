#pragma once

#include <functional>
#include <optional>
#include <QByteArray>
#include <QIODevice>

/// An atom of a file (ISO 14496-12, a "box"): half-open ranges of byte offsets.
struct Atom
{
    quint32 type = 0;
    qint64 start = 0; ///< where its header begins
    qint64 body = 0; ///< where its content begins
    qint64 end = 0;
    bool isOpen = false; ///< it states no size: it goes to the end of its parent
    bool isWhole = true; ///< false: it claims to go beyond its parent, and was cut there
};

/// A four-character code: atomType("moov").
constexpr quint32 atomType(const char (&name)[5])
{
    quint32 code = 0;
    for (int i = 0; i < 4; ++i) {
        code = code << 8 | static_cast<unsigned char>(name[i]);
    }
    return code;
}

/// Reads atoms from a device without trusting what they say: an atom ends where its parent ends at
/// the latest, and all reading of one reader is limited in atoms and in bytes.
class AtomReader
{
public:
    explicit AtomReader(QIODevice &device);

    /// The whole device as a range.
    Atom root() const;

    /// The atom at a position; nothing if there is none before `end`, if its header makes no sense
    /// or if the limit is reached.
    std::optional<Atom> atomAt(qint64 position, qint64 end);

    /// Calls the function for every atom within [from, end), until it returns false.
    void forEach(qint64 from, qint64 end, const std::function<bool(const Atom &)> &visit);
    void forEachChild(const Atom &parent, const std::function<bool(const Atom &)> &visit);

    /// The first atom of a type within [from, end); nothing if there is none.
    std::optional<Atom> find(qint64 from, qint64 end, quint32 type);

    /// The bytes of a range; null if they can't be read or exceed what is left of the limit.
    QByteArray bytes(qint64 from, qint64 end);
    QByteArray body(const Atom &atom) { return bytes(atom.body, atom.end); }

private:
    QIODevice &m_device;
    int m_atomsLeft;
    qint64 m_bytesLeft;
};
