#include "FileUtil.h"

#include <QtEndian>

namespace QMMultiMedia {

namespace {

template <typename T> T readValue(std::FILE *file)
{
    T value = 0;
    return std::fread(&value, sizeof value, 1, file) == 1 ? value : T(0);
}

template <typename T> int writeValue(T value, std::FILE *file)
{
    return static_cast<int>(std::fwrite(&value, sizeof value, 1, file));
}

}

unsigned char FileUtil::readB(std::FILE *file)
{
    return readValue<unsigned char>(file);
}

unsigned short FileUtil::readS(std::FILE *file, bool swap)
{
    const auto value = readValue<unsigned short>(file);
    return swap ? swapS(value) : value;
}

unsigned int FileUtil::readL(std::FILE *file, bool swap)
{
    const auto value = readValue<unsigned int>(file);
    return swap ? swapL(value) : value;
}

int FileUtil::writeB(unsigned char value, std::FILE *file)
{
    return writeValue(value, file);
}

int FileUtil::writeS(unsigned short value, std::FILE *file, bool swap)
{
    return writeValue(swap ? swapS(value) : value, file);
}

int FileUtil::writeL(unsigned int value, std::FILE *file, bool swap)
{
    return writeValue(swap ? swapL(value) : value, file);
}

unsigned short FileUtil::swapS(unsigned short value)
{
    return qbswap(value);
}

unsigned int FileUtil::swapL(unsigned int value)
{
    return qbswap(value);
}

}
