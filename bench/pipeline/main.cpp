// calderin-bench-music SECONDS RATE SEED: raw 32-bit float stereo on the standard output.
#include "Music.h"
#include <cstdio>
#include <cstdlib>

int main(int argc, char **argv)
{
    if (argc != 4) {
        std::fputs("usage: calderin-bench-music SECONDS RATE SEED\n", stderr);
        return 2;
    }
    const int rate = std::atoi(argv[2]);
    Music music(rate, static_cast<unsigned>(std::atoi(argv[3])));
    for (int second = std::atoi(argv[1]); second > 0; --second) {
        const auto samples = music.next(rate);
        if (std::fwrite(samples.data(), sizeof(float), samples.size(), stdout) != samples.size()) {
            return 1;
        }
    }
    return std::fflush(stdout) == 0 ? 0 : 1;
}
