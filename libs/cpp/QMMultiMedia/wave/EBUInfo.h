#pragma once

#include <array>
#include <cstdint>
#include <cstdio>
#include <QString>
#include <QStringList>

namespace QMMultiMedia {

/// The "bext" chunk of a broadcast wave file (EBU Tech 3285).
///
/// The five texts of fixed width are kept with their zero characters behind the value; a longer
/// value is kept, and cut at the field's width when it is written. Texts are in the local 8-bit
/// encoding.
class EBUInfo
{
public:
    /// Size of the chunk without the coding history, in bytes.
    static constexpr int fixedSize = 602;
    static constexpr int umidSize = 64;
    static constexpr int reservedSize = 190;

    EBUInfo();
    /// The time reference counts samples since midnight; the description tells the rate.
    EBUInfo(long long timeReference, float fps);
    EBUInfo(const EBUInfo &) = default;
    EBUInfo &operator=(const EBUInfo &) = default;
    virtual ~EBUInfo() = default;

    void setDescription(const QString &description);
    void setOriginator(const QString &originator);
    void setOriginationRef(const QString &reference);
    /// "yyyy-mm-dd".
    void setOriginationDate(const QString &date);
    /// "hh:mm:ss".
    void setOriginationTime(const QString &time);
    void setTimeReferenceLow(unsigned int low) { m_nTimeReferenceLow = low; }
    void setTimeReferenceHigh(unsigned int high) { m_nTimeReferenceHigh = high; }
    void setTimeReference(const long long &samples);
    void setVersion(int version) { m_nVersion = version; }
    /// An index outside of 0 to 63 is ignored.
    void setUMID(int index, char value);
    void setCodingHistory(const QString &history) { m_strCodingHistory = history; }
    /// The chunk's size field, needed before initFromHeader.
    void setChunkSize(int size) { m_nChunkSize = size; }

    QString description() const { return m_strDescription; }
    QString originator() const { return m_strOriginator; }
    QString originationRef() const { return m_strOriginationRef; }
    QString originationDate() const { return m_strOriginationDate; }
    QString originationTime() const { return m_strOriginationTime; }
    unsigned int timeReferenceLow() const { return m_nTimeReferenceLow; }
    unsigned int timeReferenceHigh() const { return m_nTimeReferenceHigh; }
    long long timeReference() const;
    int version() const { return m_nVersion; }
    /// 0 for an index outside of 0 to 63.
    char umid(int index) const;
    const char *umidsData() const { return m_umid.data(); }
    const char *reservedData() const { return m_reserved.data(); }
    QString codingHistory() const { return m_strCodingHistory; }
    int chunkSize() const { return m_nChunkSize; }
    /// Frames a second; -1 if nothing told it.
    float fps() const { return m_fps; }

    /// The size field of the chunk that save() writes, in bytes.
    int size() const;
    /// The UMID as 8 lines of 8 hexadecimal values.
    QString umidsString() const;
    QString scene() const;
    QString take() const;
    QString userBits() const;

    /// Gives the object its values for a new file.
    void fill(const QString &path, int sampleRate, int bitsPerSample, int channels);
    /// Makes the description: note lines, each ended by carriage return and line feed.
    void fillDescription(const QString &path);
    /// Appends the line of one processing step to the coding history.
    void updateHistory(int sampleRate, int bitsPerSample, int channels);
    static QString replaceSpacesWith(const QString &text, char replacement);

    /// Writes the chunk, without a pad byte; stops at the first failed write.
    bool save(std::FILE *file) const;
    /// Writes a file that holds the chunk alone.
    bool save(const char *path) const;
    /// Reads such a file; false, with nothing changed, if it isn't one.
    bool load(const char *path);
    /// Reads a chunk's body from the stream's position; chunkSize() tells how much history it has.
    ///
    /// A stream that ends early leaves empty fields.
    void initFromHeader(std::FILE *file);

    /// Logs the fields.
    void dump() const;

private:
    QString searchForTemplates(QStringList &keys) const;

    QString m_strDescription;
    QString m_strOriginator;
    QString m_strOriginationRef;
    QString m_strOriginationDate;
    QString m_strOriginationTime;
    std::uint32_t m_nTimeReferenceLow = 0;
    std::uint32_t m_nTimeReferenceHigh = 0;
    int m_nVersion = 0;
    std::array<char, umidSize> m_umid {};
    std::array<char, reservedSize> m_reserved {};
    QString m_strCodingHistory;
    int m_nChunkSize = 0;
    float m_fps = -1.0f;
};

}
