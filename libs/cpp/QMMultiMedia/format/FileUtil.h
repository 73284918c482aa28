#pragma once

#include <cstdio>

namespace QMMultiMedia {

/// Numbers of 8, 16 and 32 bits on a stdio stream.
///
/// swap false is the machine's own order, little-endian, as in RIFF; true is AIFF's. Reads tell of
/// no failure (the value is 0 then); writes give the number of items written, 1 or 0.
class FileUtil
{
public:
    static unsigned char readB(std::FILE *file);
    static unsigned short readS(std::FILE *file, bool swap);
    static unsigned int readL(std::FILE *file, bool swap);

    static int writeB(unsigned char value, std::FILE *file);
    static int writeS(unsigned short value, std::FILE *file, bool swap);
    static int writeL(unsigned int value, std::FILE *file, bool swap);

    static unsigned short swapS(unsigned short value);
    static unsigned int swapL(unsigned int value);
};

}
