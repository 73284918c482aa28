#include "AVMetadataItem.h"

#include "AVMetadataIdentifiers.h"
#include "Literals.h"

#include <QRegularExpression>

namespace {

bool isNumber(const QVariant &value)
{
    switch (static_cast<QMetaType::Type>(value.type())) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return true;
    default:
        return false;
    }
}

}

QString AVMetadataItem::stringValue() const
{
    if (m_value.type() == QVariant::String || isNumber(m_value)) {
        return m_value.toString();
    }
    return {};
}

QVariant AVMetadataItem::numberValue() const
{
    if (isNumber(m_value)) {
        return m_value;
    }
    if (m_keySpace == AVMetadataKeySpaceID3 && m_commonKey == AVMetadataCommonKeyType) {
        static const QRegularExpression number(u"^\\s*(?:\\((\\d{1,9})\\)|(\\d{1,9}))\\s*$"_qs);
        const QRegularExpressionMatch match = number.match(m_value.toString());
        if (match.hasMatch()) {
            return match.captured(match.lastCapturedIndex()).toUInt();
        }
    }
    return {};
}

QByteArray AVMetadataItem::dataValue() const
{
    switch (m_value.type()) {
    case QVariant::ByteArray:
        return m_value.toByteArray();
    case QVariant::Map:
        return m_value.toMap().value(u"data"_qs).toByteArray();
    default:
        return {};
    }
}

int AVMetadataItem::intValue() const
{
    if (isNumber(m_value)) {
        return static_cast<int>(qBound<qint64>(INT_MIN, m_value.toLongLong(), INT_MAX));
    }
    static const QRegularExpression integer(u"^\\s*([-+]?\\d{1,9})"_qs);
    return integer.match(m_value.toString()).captured(1).toInt();
}
