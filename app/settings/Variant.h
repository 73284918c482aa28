#pragma once

/// The converter that this program is, told from its name.
enum class Variant
{
    Wav,
    M4a,
    Mp3,
    Unknown,
};

/// Looks for "wav", "m4a" and "mp3", in this order, in the lower-cased application name.
///
/// Nothing is stored: the name is looked at anew by every call. May be called from any thread.
Variant currentVariant();
