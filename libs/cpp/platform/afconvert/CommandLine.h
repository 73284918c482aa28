#pragma once

#include <string>
#include <vector>

/// What the command line asks for.
struct CommandLine
{
    std::string source;
    std::string destination;
    int quality = 127; ///< effort of the search, 0 to 127
    int bitRate = 128000; ///< bit/s of all channels together
    bool help = false; ///< only the usage is wanted

    /// Reads the arguments without the program's name.
    ///
    /// Throws ConvertError, naming the argument, for anything that it doesn't understand: an option
    /// that is passed over in silence would give a file that wasn't asked for.
    static CommandLine parse(const std::vector<std::string> &arguments);

    /// The text for --help.
    static const char *usage();
};
