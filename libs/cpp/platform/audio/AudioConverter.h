#pragma once

#include "CoreAudioTypes.h"

struct OpaqueAudioConverter;
using AudioConverterRef = OpaqueAudioConverter *;
using AudioConverterPropertyID = UInt32;

/// An encoder's bit rate in bits per second: a UInt32.
constexpr AudioConverterPropertyID kAudioConverterEncodeBitRate = fourCC("brat");

/// Sets a property of a file's encoder; a lossless one has no bit rate: 'prop'.
[[nodiscard]] OSStatus AudioConverterSetProperty(
    AudioConverterRef converter, AudioConverterPropertyID id, UInt32 size, const void *data);
