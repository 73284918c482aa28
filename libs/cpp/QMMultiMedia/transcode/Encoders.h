#pragma once

namespace QMMultiMedia {

class EncoderFactory;

/// The one factory of streaming encoders of this process.
class Encoders
{
public:
    /// Registers a factory, or none with null; it isn't owned and must outlive its use.
    static void setFactory(EncoderFactory *factory);
    /// The registered factory, null at the start.
    static EncoderFactory *factory();

private:
    static EncoderFactory *sm_pFactory;
};

}
