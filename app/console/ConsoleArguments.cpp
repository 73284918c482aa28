#include "ConsoleArguments.h"

#include "Literals.h"
#include <QDir>
#include <QFileInfo>

namespace {

ConsoleArguments wrong(const QString &message)
{
    ConsoleArguments arguments;
    arguments.action = ConsoleArguments::Action::Wrong;
    arguments.message = message;
    return arguments;
}

QString folderPath(const QString &path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    return absolute.endsWith(u'/') ? absolute : absolute + u"/"_qs;
}

}

ConsoleArguments ConsoleArguments::parse(const QStringList &arguments)
{
    ConsoleArguments result;
    bool options = true;
    for (int i = 0; i < arguments.size(); ++i) {
        const QString &argument = arguments.at(i);
        if (options && argument == u"--"_qs) {
            options = false;
        } else if (options && (argument == u"--help"_qs || argument == u"-h"_qs)) {
            result.action = Action::Help;
            return result;
        } else if (options && argument == u"--version"_qs) {
            result.action = Action::Version;
            return result;
        } else if (options && argument == u"--destination"_qs) {
            if (++i == arguments.size() || arguments.at(i).isEmpty()) {
                return wrong(u"--destination needs a folder"_qs);
            }
            result.destination = folderPath(arguments.at(i));
        } else if (options && argument.startsWith(u"--destination="_qs)) {
            const QString value = argument.mid(14);
            if (value.isEmpty()) {
                return wrong(u"--destination needs a folder"_qs);
            }
            result.destination = folderPath(value);
        } else if (options && argument.startsWith(u'-') && argument.size() > 1) {
            return wrong(u"unknown option: "_qs + argument);
        } else if (argument.isEmpty()) {
            return wrong(u"an empty path"_qs);
        } else {
            result.paths.append(QFileInfo(argument).absoluteFilePath());
        }
    }
    if (result.paths.isEmpty()) {
        return wrong(u"no file or folder was given"_qs);
    }
    return result;
}

QString ConsoleArguments::help()
{
    return u"Usage: calderin-m4a-batch [--destination DIR] PATH...\n"
           "Converts audio files, the sound of videos and whole folders to M4A files, with the "
           "settings\n"
           "of Calderin M4A. Every run makes a new folder below the destination; its path is the "
           "last\n"
           "line on the standard output. Progress and errors go to the standard error stream.\n"
           "\n"
           "  --destination DIR  where the folder of the run is made, instead of the stored one\n"
           "  --                 what follows are paths, also those that begin with a dash\n"
           "  --help, --version\n"
           "\n"
           "Ctrl-C finishes the file at hand and ends the run.\n"
           "Exit status: 0 all converted; 1 some files failed; 2 wrong usage, nothing to convert "
           "or a\n"
           "destination that can't be written; 3 not enough free space; 130 stopped.\n"_qs;
}
