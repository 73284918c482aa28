#pragma once

#include <exception>
#include <QByteArray>
#include <QString>

namespace MTools {

/// The one exception type of the libraries: a message text.
class Error : public std::exception
{
public:
    explicit Error(const QString &message);

    /// The text given to the constructor.
    const QString &message() const { return m_strMessage; }

    /// The text in UTF-8, valid as long as this object.
    const char *what() const noexcept override;

private:
    QString m_strMessage;
    QByteArray m_utf8;
};

}
