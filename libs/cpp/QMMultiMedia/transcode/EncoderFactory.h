#pragma once

#include <QString>

namespace QMMultiMedia {

class EncoderBase;

/// Makes streaming encoders by the name of their format.
class EncoderFactory
{
public:
    EncoderFactory() = default;
    virtual ~EncoderFactory();
    Q_DISABLE_COPY(EncoderFactory)

    /// A new encoder for the format, owned by the caller; null if this factory has none.
    virtual EncoderBase *encoder(const QString &name);
};

}
