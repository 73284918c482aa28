#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

/// One piece of a file's metadata, as the file holds it.
///
/// A plain value; copies share their data. Text is a QString, a number an integer QVariant, data a
/// QByteArray, a dictionary a QVariantMap.
class AVMetadataItem
{
public:
    AVMetadataItem() = default;
    AVMetadataItem(const QString &keySpace, const QVariant &key, const QString &commonKey,
        const QVariant &value, const QString &dataType)
        : m_keySpace(keySpace)
        , m_commonKey(commonKey)
        , m_dataType(dataType)
        , m_key(key)
        , m_value(value)
    {
    }

    /// The word of the field that all formats share (AVMetadataCommonKey…); null if there is none.
    QString commonKey() const { return m_commonKey; }
    /// The format's own key: a text, or a four-character code as an unsigned number.
    QVariant key() const { return m_key; }
    /// The key space that key() belongs to (AVMetadataKeySpace…).
    QString keySpace() const { return m_keySpace; }
    /// The value in its own type; an ID3 picture is a dictionary with its bytes under "data".
    QVariant value() const { return m_value; }
    /// The value's uniform type; that of a picture ends in its kind in capitals ("…PNG", "…JPEG").
    QString dataType() const { return m_dataType; }

    /// The value as text; null if it is neither text nor number.
    QString stringValue() const;
    /// The value as a number: a number itself, or an ID3 genre text that is a number, bare or in
    /// parentheses. Invalid if there is none.
    QVariant numberValue() const;
    /// The value's bytes: data itself, or what a dictionary holds under "data". Null if none.
    QByteArray dataValue() const;
    /// The value as an integer: a number, or the integer that a text begins with; else 0.
    int intValue() const;

    /// A copy to change: it keeps key, key space and data type.
    AVMetadataItem mutableCopy() const { return *this; }
    void setValue(const QVariant &value) { m_value = value; }

private:
    QString m_keySpace;
    QString m_commonKey;
    QString m_dataType;
    QVariant m_key;
    QVariant m_value;
};
