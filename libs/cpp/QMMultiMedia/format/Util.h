#pragma once

namespace QMMultiMedia {

/// Conversions of samples between floats (nominally -1.0 to 1.0), integers and the bytes of files.
///
/// All of them return 0 but convertFromIeeeExtended. Values are cut towards zero: nothing dithers
/// or rounds. A float that isn't a number becomes the lower limit. Conversions between float and
/// int run from the last sample to the first, so that destination and source may be the same
/// memory.
class Util
{
public:
    // Float to one signed int (or short) a sample; n counts samples. The limits of the forms up to
    // 24 bits are symmetric: -32767 to 32767, never -32768.
    static int convertFloatTo8(const float *source, int *dest, int n);
    static int convertFloatTo16(const float *source, int *dest, int n);
    static int convertFloatToShort16(const float *source, short *dest, int n);
    static int convertFloatTo24(const float *source, int *dest, int n);
    static int convertFloatTo32(const float *source, int *dest, int n);

    // Float to one int a sample in offset binary; n counts samples.
    static int convertFloatTo8U(const float *source, int *dest, int n);
    static int convertFloatTo16U(const float *source, int *dest, int n);
    static int convertFloatTo24U(const float *source, int *dest, int n);

    // One int a sample to float; n counts samples. Bits above the sample's width are ignored.
    static int convert8ToFloat(const int *source, float *dest, int n);
    static int convert16ToFloat(const int *source, float *dest, int n);
    static int convert24ToFloat(const int *source, float *dest, int n);
    static int convert32ToFloat(const int *source, float *dest, int n);
    static int convert8UToFloat(const int *source, float *dest, int n);
    static int convert16UToFloat(const int *source, float *dest, int n);
    static int convert24UToFloat(const int *source, float *dest, int n);
    static int convert32UToFloat(const int *source, float *dest, int n);

    // Signed samples of a file straight to float; n counts samples.
    static int convertRaw16ToFloat(const char *source, float *dest, int n, bool littleEndian);
    static int convertRaw24ToFloat(const char *source, float *dest, int n, bool littleEndian);
    static int convertRaw32ToFloat(const char *source, float *dest, int n, bool littleEndian);

    // Samples of a file to one int each, without scaling or sign; n counts samples.
    static int convertRawTo8U(const char *source, int *dest, int n);
    static int convertRawTo16U(const char *source, int *dest, int n, bool littleEndian);
    static int convertRawTo24U(const char *source, int *dest, int n, bool littleEndian);
    static int convertRawTo32U(const char *source, int *dest, int n, bool littleEndian);

    // The low bytes of one int a sample to a file's bytes; n counts bytes of output.
    static int convert8UToRaw(const int *source, char *dest, int n);
    static int convert16ToRaw(const int *source, char *dest, int n, bool littleEndian);
    /// Little-endian always.
    static int convert24ToRaw(const int *source, char *dest, int n);
    static int convert32ToRaw(const int *source, char *dest, int n, bool littleEndian);

    /// The value of an 80-bit IEEE extended number, 10 bytes, big-endian (the sample rate of AIFF).
    static double convertFromIeeeExtended(const char *bytes);
};

}
