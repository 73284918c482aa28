#pragma once

#include <string>

/// Converts WAV files to M4A files with AAC sound.
namespace Converter {

struct Job
{
    std::string source; ///< path of a WAV file
    std::string destination; ///< path of the new file; it must not exist
    int bitRate = 128000; ///< bit/s of all channels together
    int quality = 127; ///< 0 to 127
    int threads = 0; ///< encoders at the same time; 0: as many as there are cores
};

/// Does the job. The destination appears at the end, complete and checked, or not at all.
///
/// Throws ConvertError with the reason if it can't be done.
void convert(const Job &job);

}
