#include "CommandLine.h"

#include "ConvertError.h"
#include <charconv>
#include <climits>

namespace {

int number(const std::string &option, const std::string &text, int lowest, int highest)
{
    int value = 0;
    const char *end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc() || stop != end || value < lowest || value > highest) {
        throw ConvertError(option + " " + text + ": not a whole number from "
            + std::to_string(lowest) + " to " + std::to_string(highest));
    }
    return value;
}

void requireOneOf(
    const std::string &option, const std::string &text, const std::vector<std::string> &known)
{
    for (const std::string &word : known) {
        if (text == word) {
            return;
        }
    }
    throw ConvertError(option + " " + text + ": only " + known.front() + " is supported");
}

void apply(CommandLine &line, const std::string &option, const std::string &value)
{
    if (option == "-o") {
        line.destination = value;
    } else if (option == "-q") {
        line.quality = number(option, value, 0, 127);
    } else if (option == "-b") {
        line.bitRate = number(option, value, 1000, INT_MAX);
    } else if (option == "-f") {
        requireOneOf(option, value, {"m4af"});
    } else {
        // The code has four characters, but a blank at the end of a command line gets lost.
        requireOneOf(option, value, {"aac", "aac "});
    }
}

}

CommandLine CommandLine::parse(const std::vector<std::string> &arguments)
{
    static const std::string options = "-o -q -b -f -d";
    CommandLine line;
    bool onlyNames = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string &word = arguments[i];
        if (!onlyNames && word == "--") {
            onlyNames = true;
        } else if (!onlyNames && (word == "-h" || word == "--help")) {
            line.help = true;
            return line;
        } else if (!onlyNames && word.size() > 1 && word[0] == '-') {
            if (word.size() != 2 || options.find(word) == std::string::npos) {
                throw ConvertError(word + ": unknown option");
            }
            if (i + 1 == arguments.size()) {
                throw ConvertError(word + ": a value is missing");
            }
            apply(line, word, arguments[++i]);
        } else if (word.empty() || !line.source.empty()) {
            throw ConvertError("\"" + word + "\": there must be one source");
        } else {
            line.source = word;
        }
    }
    if (line.source.empty()) {
        throw ConvertError("no source given; see afconvert --help");
    }
    if (line.destination.empty()) {
        throw ConvertError("no destination given: -o is missing");
    }
    return line;
}

const char *CommandLine::usage()
{
    return "Usage: afconvert SOURCE -o DESTINATION [-q QUALITY] [-b BITRATE] [-f m4af] [-d aac]\n"
           "\n"
           "Converts a WAV file to an M4A file with AAC sound.\n"
           "\n"
           "  -o DESTINATION  the new file; an existing file is never replaced\n"
           "  -q QUALITY      0 to 127: effort of the encoder's search (default 127)\n"
           "  -b BITRATE      bit/s, all channels together (default 128000)\n"
           "  -f m4af         file type\n"
           "  -d aac          format of the sound\n"
           "  --              what follows isn't an option\n"
           "\n"
           "Exit status: 0 the file is there, 1 it isn't and the reason was told.\n";
}
