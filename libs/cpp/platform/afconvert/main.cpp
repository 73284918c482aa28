#include "CommandLine.h"
#include "Converter.h"
#include "ConvertError.h"
#include "ProcessStart.h"
#include <cstdio>
#include <exception>

namespace {

/// One line whatever the names in it are.
std::string onOneLine(const std::string &text)
{
    std::string line;
    for (const char c : text) {
        if (c == '\n') {
            line += "\\n";
        } else if (static_cast<unsigned char>(c) < 0x20 || c == 0x7f) {
            line += '?';
        } else {
            line += c;
        }
    }
    return line;
}

int run(int argc, char **argv)
{
    const CommandLine line = CommandLine::parse({argv + 1, argv + argc});
    if (line.help) {
        std::fputs(CommandLine::usage(), stdout);
        return std::fflush(stdout) == 0 ? 0 : 1;
    }
    Converter::Job job;
    job.source = line.source;
    job.destination = line.destination;
    job.bitRate = line.bitRate;
    job.quality = line.quality;
    Converter::convert(job);
    return 0;
}

}

int main(int argc, char **argv)
{
    MTools::prepareProcess();
    try {
        return run(argc, argv);
    } catch (const std::exception &error) {
        std::fprintf(stderr, "afconvert: %s\n", onOneLine(error.what()).c_str());
        return 1;
    }
}
