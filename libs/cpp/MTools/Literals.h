#pragma once

#include <QString>

/// u"text"_qs: a QString of a UTF-16 literal, without a cast that hides an encoding.
///
/// The text is copied once per evaluation; an empty literal gives an empty string that isn't null.
inline QString operator""_qs(const char16_t *text, std::size_t length)
{
    return QString(reinterpret_cast<const QChar *>(text), static_cast<int>(length));
}
