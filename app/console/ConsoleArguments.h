#pragma once

#include <QString>
#include <QStringList>

/// What the command line of the console program asks for.
struct ConsoleArguments
{
    enum class Action
    {
        Run,
        Help,
        Version,
        Wrong ///< message says what is wrong
    };

    Action action = Action::Run;
    QString message;
    QString destination; ///< ends in "/"; empty for the one of the settings
    QStringList paths; ///< absolute, in the order given

    /// Reads the arguments behind the program's name. "--" ends the options, so that a path may
    /// begin with a dash; a relative path is taken from the current folder.
    static ConsoleArguments parse(const QStringList &arguments);

    /// The text of --help.
    static QString help();
};
